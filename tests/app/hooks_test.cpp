#include "app/hooks.h"

#include "support/form_test.h"
#include "toolkit/testing/test_mouse.h"

namespace zev::test {
namespace {

using Hooks = FormTest;

TEST_F(Hooks, TheWheelReachesTheCardOnlyWhileItIsHooked) {
    start();
    unhookWheel(form);
    unhookWheel(form);
    toolkit::test::turnWheel(-120);
    EXPECT_EQ(form.P1.Top, 0);
    hookWheel(form);
    toolkit::test::turnWheel(-120);
    EXPECT_LT(form.P1.Top, 0);
}

} // namespace
} // namespace zev::test
