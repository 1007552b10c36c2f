// Folders, launches, the end of the program; screen and cursor.
#include "fixture.h"

#include <filesystem>

namespace window_test {
namespace {

using namespace toolkit;

class Program : public WindowTest {};

TEST_F(Program, FolderForTestsIsGiven) {
    overrideProgram({.programFolder = "/somewhere/else"});
    EXPECT_EQ(programFolder(), "/somewhere/else");
}

TEST_F(Program, DocumentsFolderIsMadeWhenAbsent) {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / "zevlin-window-test" / "Documents";
    std::filesystem::remove_all(folder.parent_path());
    overrideProgram({.documentsFolder = folder});
    EXPECT_EQ(specialFolder(5), folder);
    EXPECT_TRUE(std::filesystem::is_directory(folder));
    EXPECT_TRUE(specialFolder(6).empty());
    std::filesystem::remove_all(folder.parent_path());
    overrideProgram({.noDocuments = true});
    EXPECT_TRUE(specialFolder(5).empty());
}

TEST_F(Program, LaunchesAreToldToATest) {
    overrideProgram({.launch = [this](const std::string& address) { note(address); }});
    openWebPage("https://zevlin.example/history#faq");
    showInFileManager("/home/a b/ZEV/ZEV.ini");
    EXPECT_EQ(log, (Log{"https://zevlin.example/history#faq", "file:///home/a b/ZEV"}));
}

TEST_F(Program, BeepIsToldToATest) {
    overrideProgram({.beep = [this] { note("beep"); }});
    beep();
    EXPECT_EQ(log, (Log{"beep"}));
}

TEST_F(Program, TwipsAreRoundedToPixelsHalvesToEven) {
    overrideScreen({.twipsPerPixel = 10});
    EXPECT_EQ(pixelsFromTwips(14), 1);
    EXPECT_EQ(pixelsFromTwips(15), 2);
    EXPECT_EQ(pixelsFromTwips(25), 2);
    EXPECT_EQ(pixelsFromTwips(-15), -2);
    EXPECT_EQ(pixelsFromTwips(-25), -2);
    EXPECT_EQ(pixelsFromTwips(-14), -1);
}

TEST_F(Program, ScreenIsMeasuredInTwips) {
    const Screen found = screen();
    EXPECT_GT(found.Width, px(300));
    EXPECT_EQ(found.TwipsPerPixelX, px(1));
    overrideScreen({.width = 1000, .height = 800});
    EXPECT_EQ(screen().Width, 1000);
    EXPECT_EQ(screen().Height, 800);
}

TEST_F(Program, TaskBarForTestsIsGiven) {
    overrideScreen({.taskBar = {0, 570, 800, 30}, .hasTaskBar = true});
    EXPECT_EQ(taskBar().Top, 570);
    EXPECT_EQ(taskBar().Height, 30);
}

TEST_F(Program, CursorIsWhereItWasAskedForUntilThePointerMoves) {
    setCursorPosition({123, 145});
    EXPECT_EQ(cursorPosition().x, 123);
    EXPECT_EQ(cursorPosition().y, 145);
    // Beyond the screen no pointer can be.
    setCursorPosition({-5000, -5000});
    EXPECT_EQ(cursorPosition().x, -5000);
    test::moveMouse(px(30), px(40));
    EXPECT_GE(cursorPosition().x, 0);
}

} // namespace
} // namespace window_test
