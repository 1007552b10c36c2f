#include <cstdlib>

#include "fixture.h"

toolkit::Application* window_test::application = nullptr;

int main(int argumentCount, char** arguments) {
    // A test opens no window on anyone's desktop unless asked to.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    testing::InitGoogleTest(&argumentCount, arguments);
    toolkit::Application made(argumentCount, arguments);
    window_test::application = &made;
    return RUN_ALL_TESTS();
}
