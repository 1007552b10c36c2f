#include "card/file_state.h"

#include <gtest/gtest.h>

#include "support/system.h"
#include "toolkit/base/write_file.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

class FileStateTest : public testing::Test {
  protected:
    ~FileStateTest() override { fs::remove_all(folder_); }
    FileState write(const std::string& content) const {
        toolkit::writeFile(file(), content);
        return fileState(file(), content);
    }
    [[nodiscard]] fs::path file() const { return folder_ / "card.zev"; }

  private:
    fs::path folder_ = test_system::newFolder("zevlin-state-");
};

TEST_F(FileStateTest, AFileLeftAloneIsUnchanged) { EXPECT_FALSE(isChanged(file(), write("a"))); }

TEST_F(FileStateTest, AnotherContentOfTheSameLengthIsAChange) {
    const FileState before = write("a");
    const auto time = fs::last_write_time(file());
    write("b");
    fs::last_write_time(file(), time);
    EXPECT_TRUE(isChanged(file(), before));
}

TEST_F(FileStateTest, AnotherTimeAloneIsNone) {
    const FileState before = write("a");
    fs::last_write_time(file(), fs::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_FALSE(isChanged(file(), before));
}

TEST_F(FileStateTest, ARemovedFileIsChanged) {
    const FileState before = write("a");
    fs::remove(file());
    EXPECT_TRUE(isChanged(file(), before));
}

TEST_F(FileStateTest, ANewFileIsChanged) {
    EXPECT_FALSE(isChanged(file(), {}));
    write("a");
    EXPECT_TRUE(isChanged(file(), {}));
}

TEST_F(FileStateTest, AFolderInItsPlaceIsAChange) {
    const FileState before = write("a");
    fs::remove(file());
    fs::create_directory(file());
    EXPECT_TRUE(isChanged(file(), before));
}

TEST_F(FileStateTest, ComesBackFromItsText) {
    const FileState state = write("some content");
    EXPECT_EQ(fileStateFrom(fileStateText(state)), state);
    EXPECT_EQ(fileStateText({}), "0");
    for (const char* text : {"0", "", "x", "1", "1 2 3", "2 1 1 1", "1 a 3 4"})
        EXPECT_EQ(fileStateFrom(text), FileState{}) << text;
}

TEST(ContentHash, IsTheKnownOne) {
    EXPECT_EQ(contentHash(""), 0xcbf29ce484222325U);
    EXPECT_EQ(contentHash("a"), 0xaf63dc4c8601ec8cU);
    EXPECT_EQ(contentHash("foobar"), 0x85944171f73967e8U);
}

} // namespace
} // namespace zev
