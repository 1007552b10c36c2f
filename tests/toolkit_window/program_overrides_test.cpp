#include "toolkit/base/program_overrides.h"

#include <chrono>
#include <filesystem>

#include "fixture.h"
#include "toolkit/window/program.h"
#include "toolkit/window/shell_folders.h"

namespace window_test {
namespace {

using namespace toolkit;

class ProgramOverridesTest : public WindowTest {};

TEST_F(ProgramOverridesTest, FolderForTestsIsGiven) {
    overrideProgram({.programFolder = "/somewhere/else"});
    EXPECT_EQ(programFolder(), "/somewhere/else");
}

TEST_F(ProgramOverridesTest, TheStateFolderForTestsIsGivenAndNotMade) {
    overrideProgram({.stateFolder = "/nowhere/state"});
    EXPECT_EQ(stateFolder(), "/nowhere/state");
    EXPECT_FALSE(std::filesystem::exists("/nowhere"));
}

TEST_F(ProgramOverridesTest, LaunchesAreToldToATest) {
    overrideProgram({.launch = [this](const std::string& address) { note(address); }});
    openWebPage("https://zevlin.example/history#faq");
    showInFileManager("/home/a b/ZEV/ZEV.ini");
    EXPECT_EQ(log, (Log{"https://zevlin.example/history#faq", "file:///home/a b/ZEV"}));
}

TEST_F(ProgramOverridesTest, ShortWaitsAreOverAtOnce) {
    overrideProgram({.shortWaits = true});
    const auto start = std::chrono::steady_clock::now();
    wait(10000);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_F(ProgramOverridesTest, BeepIsToldToATest) {
    overrideProgram({.beep = [this] { note("beep"); }});
    beep();
    EXPECT_EQ(log, (Log{"beep"}));
}

} // namespace
} // namespace window_test
