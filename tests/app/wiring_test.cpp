#include "app/wiring.h"

#include "app/layouts.h"
#include "layout/write_layout.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

class Wiring : public FormTest {
  protected:
    Wiring() { writeLayout(fewFields()); }
};

TEST_F(Wiring, AFailureThatNoProcedureTrappedIsTraced) {
    start();
    announceError("Error in an event: #");
    form.P1.KeyDown = [](toolkit::KeyArguments& /*key*/) {
        throw toolkit::RunTimeError(toolkit::Failure::Overflow);
    };
    toolkit::test::typeKey(toolkit::key::space);
    EXPECT_TRUE(traced("Error in an event: #6, Overflow"));
}

TEST_F(Wiring, APressOnATextAreaOpensIt) {
    start();
    clickText(1);
    EXPECT_TRUE(form.CText.Visible);
    EXPECT_EQ(form.ActiveControl, &form.CText);
}

TEST_F(Wiring, APressOnBareCardReachesTheMarks) {
    start();
    clickMark(1);
    EXPECT_TRUE(form.AMark[1].Visible);
    clickMark(1);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(Wiring, EscapeHidesTheHelpAndTheCardIsAliveAgain) {
    start();
    toolkit::test::typeKey(toolkit::key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    toolkit::test::typeKey(toolkit::key::escape, 0, "\x1B");
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(form.P1.Enabled);
}

} // namespace
} // namespace zev::test
