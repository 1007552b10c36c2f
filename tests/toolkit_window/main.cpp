#include <filesystem>
#include <fstream>

#include "fixture.h"
#include "support/system.h"
#include "toolkit/window/application.h"

toolkit::Application* window_test::application = nullptr;

namespace {

namespace fs = std::filesystem;

/// Two screens, the second to the right of the first and lower, and below them two finer ones.
constexpr const char* screens = R"({"screens": [
  {"name": "first", "x": 0, "y": 0, "width": 800, "height": 800,
   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
  {"name": "second", "x": 800, "y": 100, "width": 1000, "height": 700,
   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
  {"name": "twice as fine", "x": 0, "y": 1000, "width": 2000, "height": 1400,
   "logicalDpi": 192, "logicalBaseDpi": 96, "dpr": 1},
  {"name": "finer", "x": 2000, "y": 1000, "width": 1250, "height": 875,
   "logicalDpi": 120, "logicalBaseDpi": 96, "dpr": 1}]})";

/// The platform reads the description of its screens from this file.
fs::path describedScreens() {
    fs::path file = test_system::newFolder("zevlin-screens-") / "screens.json";
    std::ofstream(file) << screens;
    return file;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const fs::path file = describedScreens();
    // By its mere name, as a colon in a path would end the option.
    const fs::path before = fs::current_path();
    fs::current_path(file.parent_path());
    // A test opens no window on anyone's desktop unless asked to.
    test_system::presetVariable("QT_QPA_PLATFORM",
                                "offscreen:configfile=" + file.filename().string());
    testing::InitGoogleTest(&argumentCount, arguments);
    toolkit::Application made(argumentCount, arguments);
    fs::current_path(before);
    fs::remove_all(file.parent_path());
    window_test::application = &made;
    return RUN_ALL_TESTS();
}
