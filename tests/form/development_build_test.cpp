// A developer's build: this test program is linked with the services of one.
#include "app/form_load.h"
#include "support/form_test.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class DevelopmentBuild : public FormTest {};

TEST_F(DevelopmentBuild, DeletesTheTraceOfTheRunBefore) {
    toolkit::writeFile(dataFile("Trace.txt"), "before");
    start();
    EXPECT_FALSE(form.ProductionBuild);
    EXPECT_FALSE(std::filesystem::exists(dataFile("Trace.txt")));
}

TEST_F(DevelopmentBuild, ShowsTheDesignMenuFromTheStart) {
    start();
    EXPECT_TRUE(form.MShapes.Visible);
    EXPECT_TRUE(form.MShowDesignMenu.Checked);
}

TEST_F(DevelopmentBuild, LeavesTheWheelAlone) {
    start();
    EXPECT_FALSE(form.WheelHooked);
    EXPECT_EQ(form.MouseWheel, nullptr);
    toolkit::test::turnWheel(-120);
    EXPECT_EQ(form.P1.Top, 0);
    toolkit::test::closeWindow();
    EXPECT_TRUE(traced("Form_Unload 0"));
}

TEST_F(DevelopmentBuild, ExplainsNoMenus) {
    start();
    EXPECT_TRUE(form.Lmenus.List.empty());
    EXPECT_EQ(form.MenuSelect, nullptr);
    EXPECT_FALSE(traced("InitMenuDescriptions"));
}

} // namespace
} // namespace zev::test
