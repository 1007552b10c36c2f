#include <cstdlib>

#include <gtest/gtest.h>

#include "toolkit/window.h"

int main(int argumentCount, char** arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    testing::InitGoogleTest(&argumentCount, arguments);
    const toolkit::Application application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
