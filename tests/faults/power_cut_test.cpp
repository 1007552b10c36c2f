// The power is cut after every operation on files.
#include "faults/power_cut.h"

#include <optional>
#include <set>

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "toolkit/base/copy_file.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"

namespace test_faults {
namespace {

namespace fs = std::filesystem;

class PowerCut : public testing::Test {
  protected:
    PowerCut() { toolkit::writeFile(path, old); }

    /// What the file may hold after a power cut following any operation of the act: each content
    /// once, nothing where the file is missing.
    using Found = std::set<std::optional<std::string>>;
    template <typename Act>
    Found everyCut(Act act) {
        const Files before = filesIn(folder.path());
        record(act);
        Found found;
        for (std::size_t count = 0; count <= operations.size(); ++count) look(before, count, found);
        return found;
    }
    /// The same for a power cut after the act.
    template <typename Act>
    Found cutAfter(Act act) {
        const Files before = filesIn(folder.path());
        record(act);
        Found found;
        look(before, operations.size(), found);
        return found;
    }

    const toolkit::test::TemporaryFolder folder;
    const fs::path path = folder / "f";
    const std::string old = std::string(5000, 'o');
    std::vector<Operation> operations;

  private:
    template <typename Act>
    void record(Act act) {
        const Watch watch(folder.path());
        act();
        operations = watch.done();
    }
    void look(const Files& before, std::size_t count, Found& found) const {
        forEachDisk(before, std::span(operations).first(count), [&](const Files& files) {
            const auto at = files.find(path.string());
            found.insert(at == files.end() ? std::nullopt : std::optional(at->second));
        });
    }
};

/// Writes as programs do that don't think of the disk.
void writeWith(const fs::path& path, int flags, const std::string& content, bool isSynced) {
    const int file = ::open(path.c_str(), flags | O_WRONLY | O_CREAT, 0666);
    EXPECT_EQ(::write(file, content.data(), content.size()), std::ssize(content));
    EXPECT_TRUE(!isSynced || ::fdatasync(file) == 0);
    ::close(file);
}

TEST_F(PowerCut, AReplacedFileIsTheOldOrTheNewOne) {
    for (const std::size_t length : {0U, 1U, 4096U, 300000U}) {
        const std::string content(length, 'n');
        const auto write = [&] { toolkit::writeFile(path, content); };
        EXPECT_EQ(everyCut(write), (Found{old, content})) << length;
        EXPECT_GE(operations.size(), 5U);
        toolkit::writeFile(path, old);
        EXPECT_EQ(cutAfter(write), (Found{content})) << length;
        toolkit::writeFile(path, old);
    }
}

TEST_F(PowerCut, ANewFileIsWholeOrNotThere) {
    toolkit::deleteFile(path);
    EXPECT_EQ(everyCut([&] { toolkit::writeFile(path, "new"); }), (Found{std::nullopt, "new"}));
}

TEST_F(PowerCut, ACopyIsWholeOrNotThere) {
    toolkit::writeFile(folder / "from", std::string(9000, 'n'));
    const auto copy = [&] { toolkit::copyFile(folder / "from", path); };
    EXPECT_EQ(everyCut(copy), (Found{old, std::string(9000, 'n')}));
    toolkit::deleteFile(path);
    EXPECT_EQ(everyCut(copy), (Found{std::nullopt, std::string(9000, 'n')}));
}

TEST_F(PowerCut, ReplacingByRenameLosesNeither) {
    toolkit::writeFile(folder / "from", "new");
    const auto replace = [&] { toolkit::replaceByRename(folder / "from", path); };
    EXPECT_EQ(everyCut(replace), (Found{old, "new"}));
    toolkit::writeFile(folder / "from", "newer");
    EXPECT_EQ(cutAfter(replace), (Found{"newer"}));
}

// What the next tests find shows that the tests above can fail.

TEST_F(PowerCut, WithoutASyncTheNewNameMayStandOverNothing) {
    const auto found = everyCut([&] {
        writeWith(folder / "part", O_TRUNC, std::string(600, 'n'), false);
        fs::rename(folder / "part", path);
    });
    EXPECT_TRUE(found.contains(old));
    EXPECT_TRUE(found.contains(""));
    EXPECT_TRUE(found.contains(std::string(300, 'n')));
}

TEST_F(PowerCut, WithoutASyncOfTheFolderTheOldFileMayComeBack) {
    const auto found = cutAfter([&] {
        writeWith(folder / "part", O_TRUNC, "new", true);
        fs::rename(folder / "part", path);
    });
    EXPECT_EQ(found, (Found{old, "new"}));
}

TEST_F(PowerCut, WrittenOverWhereItStandsItMayBeNeither) {
    EXPECT_TRUE(everyCut([&] { writeWith(path, O_TRUNC, "new", true); }).contains(""));
    toolkit::writeFile(path, old);
    EXPECT_TRUE(everyCut([&] {
                    writeWith(path, 0, std::string(600, 'n'), true);
                }).contains(std::string(600, 'n') + std::string(4400, 'o')));
}

TEST_F(PowerCut, RemovedBeforeTheRenameItMayBeGone) {
    const auto found = everyCut([&] {
        writeWith(folder / "part", O_TRUNC, "new", true);
        fs::remove(path);
        fs::rename(folder / "part", path);
    });
    EXPECT_TRUE(found.contains(std::nullopt));
}

} // namespace
} // namespace test_faults
