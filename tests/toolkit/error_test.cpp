#include "toolkit/base/error.h"

#include <cerrno>
#include <filesystem>
#include <new>
#include <set>
#include <stdexcept>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

template <typename Exception>
RunTimeError translated(const Exception& exception) {
    try {
        throw exception;
    } catch (...) {
        return currentFailure();
    }
}

TEST(Error, AFailureCarriesItsClassicNumberAndDescription) {
    const RunTimeError error(Failure::FileNotFound);
    EXPECT_EQ(error.number(), 53);
    EXPECT_EQ(error.description(), "File not found");
    EXPECT_STREQ(error.what(), "File not found");
}

TEST(Error, ADescriptionOfItsOwnReplacesTheClassicOne) {
    const RunTimeError error(Failure::PrinterError, "No paper");
    EXPECT_EQ(error.number(), 482);
    EXPECT_EQ(error.description(), "No paper");
}

TEST(Error, EachFailureHasADescriptionOfItsOwn) {
    std::set<std::string_view> descriptions;
    const auto numbers = {5,  6,  7,  9,  11, 13, 51, 52,  53,  55,  57,
                          58, 61, 62, 67, 70, 75, 76, 340, 360, 481, 482};
    for (const int number : numbers) descriptions.insert(describe(static_cast<Failure>(number)));
    EXPECT_EQ(descriptions.size(), numbers.size());
    EXPECT_EQ(descriptions.count(""), 0U);
}

TEST(Error, FileErrorsOfThePlatformBecomeClassicNumbers) {
    EXPECT_EQ(fileFailure(ENOENT).number(), 53);
    EXPECT_EQ(fileFailure(ENOTDIR).number(), 76);
    EXPECT_EQ(fileFailure(EACCES).number(), 70);
    EXPECT_EQ(fileFailure(EROFS).number(), 70);
    EXPECT_EQ(fileFailure(EISDIR).number(), 75);
    EXPECT_EQ(fileFailure(ENOSPC).number(), 61);
#ifdef EDQUOT
    EXPECT_EQ(fileFailure(EDQUOT).number(), 61);
#endif
    EXPECT_EQ(fileFailure(EMFILE).number(), 67);
    EXPECT_EQ(fileFailure(ENFILE).number(), 67);
    EXPECT_EQ(fileFailure(ENAMETOOLONG).number(), 52);
    EXPECT_EQ(fileFailure(EIO).number(), 57);
}

TEST(Error, AnyExceptionBecomesARunTimeError) {
    EXPECT_EQ(translated(RunTimeError(Failure::DiskFull)).number(), 61);
    EXPECT_EQ(translated(std::bad_alloc()).number(), 7);
    EXPECT_EQ(translated(std::runtime_error("odd")).number(), 51);
    const auto missing = std::make_error_code(std::errc::no_such_file_or_directory);
    EXPECT_EQ(translated(std::filesystem::filesystem_error("read", missing)).number(), 53);
}

TEST(Error, ATranslatedFailureKeepsItsDescription) {
    const RunTimeError error(Failure::NoSuchElement, "Control array element '5' doesn't exist");
    EXPECT_EQ(translated(error).description(), error.description());
}

TEST(Error, WhatIsNoExceptionPassesThrough) { EXPECT_THROW((void)translated(5), int); }

} // namespace
} // namespace toolkit
