#include "app/wiring.h"

#include "app/layouts.h"
#include "layout/write_layout.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

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

TEST_F(Wiring, AnyCommandClosesTheHelpFirst) {
    start();
    for (const char* command :
         {"Options>Show the Design Menu         Shift Ctrl  D", "Design>Show all Marks",
          "Design>Red", "File>New", "File>Save As...", "Options>Boldface", "Options>My Name",
          "View>Fit to screen height", "View>Zoom Out (Smaller)               Ctrl  -"}) {
        toolkit::test::typeKey(toolkit::key::f1);
        ASSERT_TRUE(form.THelp.Visible) << command;
        if (std::string_view(command) == "File>Save As...") answerName("");
        if (std::string_view(command) == "Options>My Name") answerInput("");
        ASSERT_TRUE(toolkit::test::chooseMenu(command)) << command;
        EXPECT_FALSE(toolkit::test::isShown(form.THelp)) << command;
        EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.P1)) << command;
    }
}

TEST_F(Wiring, AShortcutClosesTheHelpFirst) {
    start();
    form.MShapes.Visible = true;
    toolkit::test::typeKey(toolkit::key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    toolkit::test::typeKey('A', toolkit::shift::ctrl);
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_FALSE(form.THelp.Visible);
    toolkit::test::typeKey(toolkit::key::f1);
    EXPECT_TRUE(toolkit::test::isShown(form.THelp));
}

TEST_F(Wiring, EscapeHidesTheHelpAndTheCardIsAliveAgain) {
    start();
    toolkit::test::typeKey(toolkit::key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    toolkit::test::typeKey(toolkit::key::escape, 0, "\x1B");
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(form.P1.Enabled);
}

TEST_F(Wiring, AScreenReaderReadsTheHelpLineByLineAndFollowsItsLinks) {
    start();
    const toolkit::test::ScreenReader reader;
    toolkit::test::typeKey(toolkit::key::f1);
    toolkit::test::settle();
    EXPECT_EQ(toolkit::test::accessiblePart("Help page").role, "list");
    EXPECT_EQ(toolkit::test::accessiblePartsOf("Help page").size(), form.THelp.List.size());
    EXPECT_EQ(reader.all().back(), "Focus " + form.THelp.List[1]);
    EXPECT_EQ(toolkit::test::accessiblePart(form.THelp.List[2]).role, "row");
    for (const int line : {form.MoreInformationLine, form.WebsiteLine}) {
        const std::string& text = form.THelp.List[static_cast<std::size_t>(line)];
        EXPECT_EQ(toolkit::test::accessiblePart(text).role, "link");
    }
    const auto link = static_cast<std::size_t>(form.WebsiteLine);
    EXPECT_TRUE(toolkit::test::press(form.THelp.List[link]));
    EXPECT_EQ(launched.size(), 1U);
    EXPECT_FALSE(form.THelp.Visible);
}

TEST_F(Wiring, AScreenReaderIsToldToWaitButNotTwiceWhatARowDoes) {
    start();
    EXPECT_TRUE(form.PleaseWait.IsNotice);
    EXPECT_FALSE(form.PopHelp.IsNotice);
}

} // namespace
} // namespace zev::test
