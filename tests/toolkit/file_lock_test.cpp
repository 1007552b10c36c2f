#include "toolkit/base/file_lock.h"

#include <fstream>

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

#ifndef _WIN32
#include <csignal>

#include <sys/wait.h>
#include <unistd.h>
#endif

namespace toolkit {
namespace {

class FileLockTest : public testing::Test {
  protected:
    [[nodiscard]] std::filesystem::path file() const { return folder_ / "a.lock"; }

  private:
    test::TemporaryFolder folder_;
};

TEST_F(FileLockTest, IsOneHoldersAtATime) {
    FileLock first;
    FileLock second;
    EXPECT_FALSE(first.isHeld());
    EXPECT_TRUE(first.take(file()));
    EXPECT_TRUE(first.isHeld());
    EXPECT_FALSE(second.take(file()));
    EXPECT_FALSE(second.isHeld());
    first.release();
    EXPECT_TRUE(second.take(file()));
}

TEST_F(FileLockTest, ItsFileGoesWithIt) {
    {
        FileLock lock;
        ASSERT_TRUE(lock.take(file()));
        EXPECT_TRUE(std::filesystem::exists(file()));
    }
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(FileLockTest, MovesToAnotherHolder) {
    FileLock first;
    ASSERT_TRUE(first.take(file()));
    FileLock second = std::move(first);
    EXPECT_TRUE(second.isHeld());
    EXPECT_TRUE(std::filesystem::exists(file()));
}

TEST_F(FileLockTest, WithoutItsFolderIsNotTaken) {
    FileLock lock;
    EXPECT_FALSE(lock.take(file() / "b.lock"));
}

TEST_F(FileLockTest, OfAFileThatIsNoLockIsTakenOver) {
    std::ofstream(file()) << "nothing of a process";
    FileLock lock;
    EXPECT_TRUE(lock.take(file()));
}

#ifndef _WIN32
TEST_F(FileLockTest, OfADeadProcessIsTakenOverAndOfALivingOneNot) {
    int ready[2] = {};
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        FileLock lock;
        const char taken = lock.take(file()) ? 1 : 0;
        [[maybe_unused]] const auto written = write(ready[1], &taken, 1);
        pause();
    }
    char taken = 0;
    ASSERT_EQ(read(ready[0], &taken, 1), 1);
    EXPECT_EQ(taken, 1);
    FileLock lock;
    EXPECT_FALSE(lock.take(file()));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(std::filesystem::exists(file()));
    EXPECT_TRUE(lock.take(file()));
}
#endif

} // namespace
} // namespace toolkit
