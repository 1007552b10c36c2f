#include "toolkit/base/copy_file.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/failure_of.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;
using test::failureOf;
using test::TemporaryFolder;

TEST(CopyFile, ACopyHasContentAndTimeAndIsWritable) {
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    fs::last_write_time(folder / "from",
                        fs::last_write_time(folder / "from") - std::chrono::hours(48));
    fs::permissions(folder / "from", fs::perms::owner_read);
    copyFile(folder / "from", folder / "to");
    EXPECT_EQ(readFile(folder / "to"), "content");
    EXPECT_EQ(fileTime(folder / "to"), fileTime(folder / "from"));
    EXPECT_EQ(fs::last_write_time(folder / "to"), fs::last_write_time(folder / "from"));
    EXPECT_NE(fs::status(folder / "to").permissions() & fs::perms::owner_write, fs::perms::none);
    // Else some systems don't let it be removed.
    fs::permissions(folder / "from", fs::perms::owner_all);
}

TEST(CopyFile, ACopyReplacesItsTarget) {
    const TemporaryFolder folder;
    writeFile(folder / "from", "new");
    writeFile(folder / "to", "old and longer");
    copyFile(folder / "from", folder / "to");
    EXPECT_EQ(readFile(folder / "to"), "new");
}

TEST(CopyFile, ACopyTakesItsTargetsPlaceAndIsNeverHalfThere) {
    const TemporaryFolder folder;
    writeFile(folder / "from", "new");
    writeFile(folder / "to", "old");
    fs::create_hard_link(folder / "to", folder / "before");
    copyFile(folder / "from", folder / "to");
    EXPECT_EQ(readFile(folder / "to"), "new");
    EXPECT_EQ(readFile(folder / "before"), "old");
}

TEST(CopyFile, ACopyOntoItselfFailsAndKeepsTheContent) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "content");
    EXPECT_EQ(failureOf([&] { copyFile(folder / "f", folder / "f"); }), 70);
    EXPECT_EQ(readFile(folder / "f"), "content");
}

} // namespace
} // namespace toolkit
