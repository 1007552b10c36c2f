#include "toolkit/base/file_address.h"

#include <string>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

#ifdef _WIN32
const std::string root = "/C:";
const std::filesystem::path nativeRoot = "C:";
#else
const std::string root;
const std::filesystem::path nativeRoot;
#endif

std::filesystem::path native(const char* behindRoot) {
    return std::filesystem::path(nativeRoot) += behindRoot;
}

TEST(FileAddress, NamesAFile) {
    EXPECT_EQ(fileOfAddress("file://" + root + "/home/joe/Jones.zev"),
              native("/home/joe/Jones.zev"));
    EXPECT_EQ(fileOfAddress("file:" + root + "/home/joe/Jones.zev"), native("/home/joe/Jones.zev"));
    EXPECT_EQ(fileOfAddress("FILE://localhost" + root + "/Jones.zev"), native("/Jones.zev"));
}

TEST(FileAddress, LosesItsPercentSigns) {
    EXPECT_EQ(fileOfAddress("file://" + root + "/a%20b/100%25%2a.zev"), native("/a b/100%*.zev"));
    EXPECT_EQ(fileOfAddress("file://" + root + "/M%C3%BCller.zev"),
              std::filesystem::path(nativeRoot) += u8"/M\u00FCller.zev");
    EXPECT_EQ(fileOfAddress("file://" + root + "/a b#1?.zev"), native("/a b#1?.zev"));
}

TEST(FileAddress, WithAPercentSignThatMeansNothingIsNone) {
    for (const char* tail : {"/a%", "/a%2", "/a%zz", "/a%2g.zev", "/a%-1", "/a%00b"})
        EXPECT_EQ(fileOfAddress("file://" + root + tail), std::nullopt) << tail;
}

TEST(FileAddress, OfNoFileIsNone) {
    for (const char* text : {"", "file", "file:", "file://", "file:Jones.zev", "Jones.zev",
                             "/home/joe/Jones.zev", "http://a.example/Jones.zev", "profile:///a"})
        EXPECT_EQ(fileOfAddress(text), std::nullopt) << text;
}

#ifdef _WIN32
TEST(FileAddress, OfAnotherMachineIsWhatItShares) {
    EXPECT_EQ(fileOfAddress("file://server/cards/Jones.zev"),
              std::filesystem::path("//server/cards/Jones.zev"));
}

TEST(FileAddress, OfBytesThatAreNoTextIsNone) {
    EXPECT_EQ(fileOfAddress("file:///C:/a%FFb.zev"), std::nullopt);
}
#else
TEST(FileAddress, OfAnotherMachineIsNone) {
    EXPECT_EQ(fileOfAddress("file://server/cards/Jones.zev"), std::nullopt);
}

TEST(FileAddress, KeepsBytesThatAreNoText) {
    EXPECT_EQ(fileOfAddress("file:///a%FFb.zev"), std::filesystem::path("/a\xFF"
                                                                        "b.zev"));
}
#endif

} // namespace
} // namespace toolkit
