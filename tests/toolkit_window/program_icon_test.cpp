// The icon that the desktop shows for the window.
#include "fixture.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class ProgramIcon : public WindowTest {};

TEST_F(ProgramIcon, IsACardOnFeltInEachSize) {
    constexpr Color felt = rgb(46, 96, 70);
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        const Bitmap icon = test::shownIcon(size);
        ASSERT_EQ(icon.width(), size);
        ASSERT_EQ(icon.height(), size);
        EXPECT_EQ(icon.pixel(size / 8, size / 2), felt) << size;
        EXPECT_EQ(icon.pixel(size / 4, size / 2), white) << size;
        EXPECT_EQ(icon.pixel(size / 2, size * 5 / 8), black) << size;
    }
}

} // namespace
} // namespace window_test
