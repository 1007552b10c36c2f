// Every operation on files fails once, in each way.
#include <cerrno>
#include <fstream>

#include <gtest/gtest.h>

#include "faults/faults.h"
#include "faults/power_cut.h"
#include "support/temporary_folder.h"
#include "toolkit/base/copy_file.h"
#include "toolkit/base/error.h"
#include "toolkit/base/write_file.h"

namespace test_faults {
namespace {

namespace fs = std::filesystem;

class FileFaults : public testing::Test {
  protected:
    FileFaults() {
        fs::create_directory(data);
        toolkit::writeFile(path, old);
        toolkit::writeFile(folder / "from", content);
    }

    /// After a failure the file must be the old one, or the new one where only the last sync
    /// failed; after a success the new one. In both cases no other file may be left.
    void runWith(const std::function<void()>& act) {
        bool hasFailed = false;
        const int runs =
            forEveryFault({.home = folder.path(),
                           .folder = data,
                           .scenario = [&] { hasFailed = !succeeds(act); },

                           .check =
                               [&](Kind kind) {
                                   // Nothing can be removed from a folder that isn't there; the
                                   // next start does that.
                                   if (kind == Kind::FolderGone || kind == Kind::FolderComesBack)
                                       toolkit::deleteLeftOvers(data);
                                   check(hasFailed);
                               }});
        EXPECT_GT(runs, 30);
    }
    void check(bool hasFailed) const {
        const Files files = filesIn(data);
        ASSERT_TRUE(files.contains(path.string()));
        const std::string found = files.at(path.string());
        EXPECT_TRUE(found == content || (hasFailed && found == old)) << found.substr(0, 20);
        EXPECT_EQ(files.size(), 1U) << files.begin()->first;
    }
    static bool succeeds(const std::function<void()>& act) {
        try {
            act();
            return true;
        } catch (const toolkit::RunTimeError&) {
            return false;
        }
    }

    const toolkit::test::TemporaryFolder folder;
    const fs::path data = folder / "data";
    const fs::path path = data / "f";
    const std::string old = std::string(5000, 'o');
    const std::string content = std::string(7000, 'n');
};

TEST_F(FileFaults, AReplacedFileIsTheOldOrTheNewOne) {
    runWith([&] { toolkit::writeFile(path, content); });
}

TEST_F(FileFaults, ACopyIsTheOldOrTheNewOne) {
    runWith([&] { toolkit::copyFile(folder / "from", path); });
}

TEST_F(FileFaults, WithoutRoomForAnotherFileTheOldOneIsNotWrittenOver) {
    const auto refuse = [](Call call, const std::string& part) {
        return call == Call::OpenToWrite && part.ends_with(".part") ? ENOSPC : 0;
    };
    {
        const Watch watch(folder.path(), refuse);
        EXPECT_FALSE(succeeds([&] { toolkit::writeFile(path, content); }));
    }
    EXPECT_EQ(filesIn(data).at(path.string()), old);
}

/// Another program acts just before the last step.
class LastMoment : public FileFaults {
  protected:
    /// The failure of a new file's writing, 0 for none.
    int failureOfWriting(const std::function<int()>& atRename) {
        const Watch watch(folder.path(), [&](Call call, const std::string& /*path*/) {
            return call == Call::Rename ? atRename() : 0;
        });
        try {
            toolkit::writeNewFile(target, content);
            return 0;
        } catch (const toolkit::RunTimeError& failure) {
            return failure.number();
        }
    }
    int turnUp() const {
        std::ofstream(target) << "theirs";
        return 0;
    }
    const fs::path target = data / "new";
};

TEST_F(LastMoment, AFileThatTurnsUpIsNotReplacedByANewOne) {
    EXPECT_EQ(failureOfWriting([&] { return turnUp(); }), 58);
    EXPECT_EQ(filesIn(data).at(target.string()), "theirs");
    EXPECT_EQ(filesIn(data).size(), 2U);
}

TEST_F(LastMoment, AFileSystemThatCanOnlyReplaceGetsALink) {
    EXPECT_EQ(failureOfWriting([] { return EINVAL; }), 0);
    EXPECT_EQ(filesIn(data).at(target.string()), content);
    EXPECT_EQ(filesIn(data).size(), 2U);
}

TEST_F(LastMoment, NorDoesALinkReplaceAFileThatTurnsUp) {
    EXPECT_EQ(failureOfWriting([&] { return turnUp() + EINVAL; }), 58);
    EXPECT_EQ(filesIn(data).at(target.string()), "theirs");
    EXPECT_EQ(filesIn(data).size(), 2U);
}

TEST_F(LastMoment, AFolderThatTakesNoLinkEitherGetsTheFileWhereItIsToStand) {
    EXPECT_EQ(failureOfWriting([] { return EPERM; }), 0);
    EXPECT_EQ(filesIn(data).at(target.string()), content);
    EXPECT_EQ(filesIn(data).size(), 2U);
    fs::remove(target);
    EXPECT_EQ(failureOfWriting([&] { return turnUp() + EPERM; }), 58);
    EXPECT_EQ(filesIn(data).at(target.string()), "theirs");
}

} // namespace
} // namespace test_faults
