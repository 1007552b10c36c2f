// Folders of the program and of the desktop, and what is opened there.
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "fixture.h"
#include "support/system.h"
#include "support/temporary_folder.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/window/program.h"
#include "toolkit/window/shell_folders.h"

namespace window_test {
namespace {

using namespace toolkit;

class ShellFolders : public WindowTest {};

TEST_F(ShellFolders, DocumentsFolderIsMadeWhenAbsent) {
    const test::TemporaryFolder home;
    const auto folder = home / "Documents";
    overrideProgram({.documentsFolder = folder});
    EXPECT_EQ(specialFolder(5), folder);
    EXPECT_TRUE(std::filesystem::is_directory(folder));
    EXPECT_TRUE(specialFolder(6).empty());
    overrideProgram({.noDocuments = true});
    EXPECT_TRUE(specialFolder(5).empty());
}

TEST_F(ShellFolders, AskingForTheDocumentsFolderMakesNone) {
    const test::TemporaryFolder home;
    const auto folder = home / "Documents";
    overrideProgram({.documentsFolder = folder});
    EXPECT_EQ(documentsFolder(), folder);
    EXPECT_FALSE(std::filesystem::exists(folder));
    overrideProgram({.noDocuments = true});
    EXPECT_TRUE(documentsFolder().empty());
}

#ifndef _WIN32
TEST_F(ShellFolders, TheStateFolderIsThatOfTheDesktop) {
    const auto folderWith = [](const char* state) {
        test_system::setVariable("XDG_STATE_HOME", state);
        auto folder = stateFolder();
        test_system::clearVariable("XDG_STATE_HOME");
        return folder;
    };
    EXPECT_EQ(folderWith("/some/state"), "/some/state/zevlin");
    const std::filesystem::path home = std::getenv("HOME");
    EXPECT_EQ(stateFolder(), home / ".local/state/zevlin");
    // By the standard only a whole path counts.
    EXPECT_EQ(folderWith("state"), home / ".local/state/zevlin");
    EXPECT_EQ(folderWith(""), home / ".local/state/zevlin");
}
#endif

TEST_F(ShellFolders, AFileThatIsThereIsSelected) {
    overrideProgram({.launch = [this](const std::string& address) { note(address); }});
    const auto folder = test_system::newFolder("zevlin shell ");
    const auto file = folder / "ZEV.Ini";
    showInFileManager(file);
    EXPECT_TRUE(log.back().ends_with(folder.generic_string())) << log.back();
    std::ofstream(file) << "options";
    showInFileManager(file);
    EXPECT_TRUE(log.back().ends_with(file.generic_string())) << log.back();
    std::filesystem::remove_all(folder);
}

} // namespace
} // namespace window_test
