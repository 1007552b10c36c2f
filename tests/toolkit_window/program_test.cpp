// Events and waits in the middle of a procedure.
#include "fixture.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/program.h"

namespace window_test {
namespace {

using namespace toolkit;

class Program : public WindowTest {};

TEST_F(Program, WaitForThePlayerLetsThemActInTheMiddleOfAProcedure) {
    bool clicked = false;
    card.Click = [&] { clicked = true; };
    box.Click = [&] { waitForPlayer([&] { return clicked; }); };
    openBox("text");
    overrideProgram({.player = [&] { test::click(px(300), px(200)); }});
    test::click(px(30), px(30));
    EXPECT_TRUE(clicked);
}

TEST_F(Program, ACloseDuringSuchAWaitComesAtOnce) {
    bool closed = false;
    form.QueryClose = [&] { return closed = true; };
    card.Click = [&] {
        waitForPlayer([&] { return closed; });
        note("after");
    };
    overrideProgram({.player = [] { test::closeWindow(); }});
    test::click(px(300), px(200));
    EXPECT_TRUE(closed);
    EXPECT_EQ(log.back(), "after");
}

TEST_F(Program, TheEndOfTheProgramEndsSuchAWait) {
    card.Click = [&] { waitForPlayer([] { return false; }); };
    box.Click = [] { throw ProgramEnded{}; };
    openBox("text");
    overrideProgram({.player = [] { test::click(px(30), px(30)); }});
    EXPECT_THROW(test::click(px(300), px(200)), ProgramEnded);
}

} // namespace
} // namespace window_test
