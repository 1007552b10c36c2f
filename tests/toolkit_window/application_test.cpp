// The run of the program.
#include "fixture.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class ApplicationTest : public WindowTest {};

TEST_F(ApplicationTest, ConsentEndsTheRunAndIsAskedForOnce) {
    form.QueryClose = [this] {
        note("asked");
        return false;
    };
    test::requestClose();
    EXPECT_EQ(application->run(), 0);
    EXPECT_EQ(log, (Log{"asked"}));
}

} // namespace
} // namespace window_test
