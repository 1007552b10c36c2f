#include <gtest/gtest.h>

#include "support/system.h"
#include "toolkit/window/application.h"
#include "toolkit/window/window.h"

int main(int argumentCount, char** arguments) {
    test_system::presetVariable("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argumentCount, arguments);
    const toolkit::Application application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
