// Message boxes, and input boxes, on the screen and answered by a test.
#include "fixture.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_boxes.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/popup_menu.h"

namespace window_test {
namespace {

using namespace toolkit;

class Dialog : public WindowTest {
  protected:
    Answer onScreen(const MessageBox& message, std::optional<Answer> pressed) {
        test::endNextBox(pressed, seen);
        return show(message);
    }

    void onScreenQuietly(const MessageBox& message) {
        EXPECT_EQ(onScreen(message, Answer::Ok), Answer::Ok);
    }

    test::ShownBox seen;
};

TEST_F(Dialog, ButtonThatIsPressedIsTheAnswer) {
    for (const Answer answer : {Answer::Yes, Answer::No, Answer::Cancel})
        EXPECT_EQ(onScreen({.text = "Save?", .buttons = Buttons::YesNoCancel}, answer), answer);
    EXPECT_EQ(onScreen({.text = "Done"}, Answer::Ok), Answer::Ok);
}

TEST_F(Dialog, ClosingAnswersCancelElseNoElseOk) {
    EXPECT_EQ(onScreen({.text = "?", .buttons = Buttons::YesNoCancel}, {}), Answer::Cancel);
    EXPECT_EQ(onScreen({.text = "?", .buttons = Buttons::OkCancel}, {}), Answer::Cancel);
    EXPECT_EQ(onScreen({.text = "?", .buttons = Buttons::YesNo}, {}), Answer::No);
    EXPECT_EQ(onScreen({.text = "?"}, {}), Answer::Ok);
}

TEST_F(Dialog, TitleIsTheGivenOneOrTheProgramsName) {
    onScreenQuietly({.text = "a"});
    EXPECT_EQ(seen.title, "Zevlin");
    onScreenQuietly({.text = "a", .title = "Printing"});
    EXPECT_EQ(seen.title, "Printing");
}

TEST_F(Dialog, TextIsPlain) {
    onScreenQuietly({.text = "<b>caf\xe9</b>"});
    EXPECT_EQ(seen.text, "<b>caf\xe9</b>");
    EXPECT_TRUE(seen.plain);
}

TEST_F(Dialog, InputBoxGivesWhatWasTypedAsATextAreaDoes) {
    test::fillNextInputBox("caf\u00e9\t\u0141ar\x01 \u2665", seen);
    EXPECT_EQ(ask({.prompt = "Name?", .title = "My Name", .preset = "x"}), "caf\xe9 Lar ^h");
    EXPECT_EQ(seen.title, "My Name");
    EXPECT_EQ(seen.text, "Name?");
    EXPECT_TRUE(seen.plain);
}

TEST_F(Dialog, InputBoxHasRoomForAName) {
    test::fillNextInputBox("x", seen);
    EXPECT_EQ(ask({.prompt = "?", .title = "T"}), "x");
    EXPECT_GE(seen.area.width, 400);
    EXPECT_LE(seen.area.width, 460);
}

TEST_F(Dialog, TestAnswersInThePlayersPlace) {
    answerDialogsWith({.message =
                           [this](const MessageBox& shown) {
                               note(shown.text);
                               return Answer::No;
                           },
                       .input = [](const InputBox& asked) { return asked.preset + "\x01!"; },
                       .popup = [](std::span<const PopupRow> rows) { rows[0].Click(); }});
    EXPECT_EQ(show({.text = "Save?", .buttons = Buttons::YesNo}), Answer::No);
    EXPECT_EQ(ask({.prompt = "Name?", .preset = "Joe"}), "Joe!");
    const std::vector<PopupRow> rows{{.Click = [this] { note("chosen"); }}};
    popupMenu(rows);
    EXPECT_EQ(log, (Log{"Save?", "chosen"}));
}

TEST_F(Dialog, ValuesAreTakenOverBeforeTheBox) {
    const Control* active = nullptr;
    answerDialogsWith({.message = [&](const MessageBox&) {
        active = form.ActiveControl;
        return Answer::Ok;
    }});
    openBox("abc");
    // Only a window that has taken this over knows that the focus is the card's now.
    box.Visible = false;
    tell("Done", Icon::Information);
    EXPECT_EQ(active, &card);
}

TEST_F(Dialog, AScreenReaderGetsABoxsTitleTextAndButtons) {
    test::readNextBox([] {
        const auto shown = test::accessiblePart("Printing");
        EXPECT_EQ(shown.role, "alert");
        EXPECT_EQ(shown.description, "Save caf\u00e9 & bar?");
        EXPECT_FALSE(test::accessiblePart("Yes").isDefault);
        EXPECT_TRUE(test::accessiblePart("No").isDefault);
        EXPECT_EQ(test::accessiblePart("Save As").role, "button");
        EXPECT_TRUE(test::press("Save As"));
    });
    EXPECT_EQ(show({.text = "Save caf\xe9 & bar?",
                    .buttons = Buttons::YesNoSaveAs,
                    .title = "Printing",
                    .preset = Answer::No}),
              Answer::SaveAs);
}

TEST_F(Dialog, AScreenReaderFillsInABoxByItsPrompt) {
    test::readNextBox([] {
        EXPECT_EQ(test::accessiblePart("My Name").role, "dialog");
        EXPECT_EQ(test::accessiblePartsNamed("Name & number?", "text").size(), 1U);
        EXPECT_TRUE(test::accessiblePart("OK").isDefault);
        EXPECT_TRUE(test::press("OK"));
    });
    EXPECT_EQ(ask({.prompt = "Name & number?", .title = "My Name", .preset = "Joe"}), "Joe");
}

} // namespace
} // namespace window_test
