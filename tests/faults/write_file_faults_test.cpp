// Every operation on files fails once, in each way.
#include <gtest/gtest.h>

#include "faults/faults.h"
#include "faults/power_cut.h"
#include "toolkit/error.h"
#include "toolkit/files.h"
#include "toolkit/temporary_folder.h"

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

    /// After a failure the file is the old one, or the new one where only the last sync failed;
    /// after success it is the new one. In both cases it stands alone.
    void runWith(const std::function<void()>& act) {
        bool hasFailed = false;
        const int runs =
            forEveryFault({.home = folder.path(),
                           .folder = data,
                           .scenario = [&] { hasFailed = !succeeds(act); },

                           .check =
                               [&](Kind kind) {
                                   // From a folder that isn't there nothing can be removed: the
                                   // next start does.
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

} // namespace
} // namespace test_faults
