#include "app/hooks.h"

#include "support/form_test.h"
#include "toolkit/testing/test_menus.h"
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

TEST_F(Hooks, MenusAreExplainedOnlyWhileTheyAreHooked) {
    start();
    const auto isExplained = [&] {
        toolkit::test::openMenu("Options");
        toolkit::test::pointAtRow("Boldface");
        const bool isRead = !toolkit::test::readRow("Boldface").description.empty();
        EXPECT_EQ(isRead, form.PopHelp.Visible);
        toolkit::test::clickBesideMenus();
        return isRead;
    };
    EXPECT_TRUE(isExplained());
    unhookMenus(form);
    unhookMenus(form);
    EXPECT_FALSE(isExplained());
    hookMenus(form);
    EXPECT_TRUE(isExplained());
}

} // namespace
} // namespace zev::test
