// The message at the foot of the form.
#include "fixture.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_note.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class NoteAtTheFoot : public WindowTest {
  protected:
    NoteAtTheFoot() {
        footNote.Text = "Written: Jones.pdf";
        footNote.Link = "Show in folder";
        footNote.ToolTip = "/home/joe/Jones.pdf";
        footNote.Font = {.Name = "Arial", .Size = 11};
        footNote.BackColor = rgb(10, 200, 10);
        footNote.Click = [this] { note("link"); };
    }
    void showMessage() {
        footNote.Visible = true;
        window->update();
    }
    static bool isSeen() {
        const Bitmap shown = test::grabWindow();
        for (int x = 0; x < shown.width(); ++x)
            if (shown.pixel(x, shown.height() - 18) == rgb(10, 200, 10)) return true;
        return false;
    }
};

TEST_F(NoteAtTheFoot, ShowsWhileItIsVisible) {
    EXPECT_EQ(test::shownNote().text, "");
    EXPECT_FALSE(isSeen());
    showMessage();
    const auto shown = test::shownNote();
    EXPECT_EQ(shown.text, "Written: Jones.pdf");
    EXPECT_EQ(shown.link, "Show in folder");
    EXPECT_EQ(shown.toolTip, "/home/joe/Jones.pdf");
    EXPECT_TRUE(isSeen());
    footNote.Visible = false;
    EXPECT_EQ(test::shownNote().text, "");
    EXPECT_FALSE(isSeen());
}

TEST_F(NoteAtTheFoot, TheLinkComesAsAClickAndTheTextAsNone) {
    showMessage();
    log.clear();
    test::clickNote();
    EXPECT_TRUE(log.empty());
    test::clickNoteLink();
    EXPECT_EQ(log, (Log{"link"}));
}

TEST_F(NoteAtTheFoot, TakesNoKeys) {
    form.SetFocus(card);
    showMessage();
    test::clickNoteLink();
    log.clear();
    test::typeKey(key::escape);
    test::typeKey(key::space);
    test::typeKey(key::tab);
    EXPECT_EQ(times("card.KeyDown 27/0"), 1);
    EXPECT_EQ(times("card.KeyDown 32/0"), 1);
    EXPECT_EQ(times("card.KeyDown 9/0"), 1);
    EXPECT_EQ(times("link"), 0);
    EXPECT_TRUE(test::hasPlatformFocus(card));
    EXPECT_FALSE(test::shownNote().takesFocus);
}

TEST_F(NoteAtTheFoot, StaysWithinTheWindow) {
    showMessage();
    EXPECT_TRUE(test::shownNote().isWithinWindow);
    EXPECT_FALSE(test::shownNote().isLinkBelow);
    form.Width = px(230);
    form.Height = px(200);
    window->update();
    test::settle();
    EXPECT_TRUE(test::shownNote().isWithinWindow);
    EXPECT_TRUE(test::shownNote().isLinkBelow);
    EXPECT_FALSE(test::shownNote().isCut);
}

TEST_F(NoteAtTheFoot, LosesTheMiddleOfATextThatIsTooLong) {
    footNote.Text = "Written: " + std::string(300, 'x') + ".pdf";
    showMessage();
    const auto shown = test::shownNote();
    EXPECT_TRUE(shown.isCut);
    EXPECT_TRUE(shown.isWithinWindow);
    EXPECT_TRUE(shown.text.starts_with("Written: xx"));
    EXPECT_TRUE(shown.text.ends_with("x.pdf"));
}

TEST_F(NoteAtTheFoot, IsANotificationWithAButtonToScreenReaders) {
    showMessage();
    footNote.Text = "Written: Smith.pdf";
    const auto read = test::readNote();
    EXPECT_TRUE(read.isNotification);
    EXPECT_EQ(read.name, "Written: Smith.pdf");
    EXPECT_EQ(read.link, "Show in folder");
    EXPECT_FALSE(read.actions.empty());
}

} // namespace
} // namespace window_test
