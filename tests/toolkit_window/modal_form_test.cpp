// A small form that waits for the player.
#include "fixture.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_dialogs.h"
#include "toolkit/window/modal_form.h"

namespace window_test {
namespace {

using namespace toolkit;

class ModalFormOnScreen : public WindowTest {
  protected:
    ModalFormOnScreen() {
        list.Label = "List";
        list.List = {"one", "two"};
        list.ListIndex = 0;
        list.Click = [this] { note("click " + std::to_string(list.ListIndex)); };
        ok.Caption = "&OK";
        ok.Default = true;
        ok.Click = [this] {
            note("ok");
            shown.Unloaded = true;
        };
        cancel.Caption = "&Cancel";
        cancel.Cancel = true;
        cancel.Click = [this] {
            note("cancel");
            shown.Unloaded = true;
        };
        option.Caption = "Option";
        shown.Caption = "Title";
        number.Label = "&Number";
        number.Min = 1;
        number.Max = 9;
        number.Value = 2;
        shown.combos = {&list};
        shown.numbers = {&number};
        shown.options = {&option};
        shown.buttons = {&ok, &cancel};
    }
    ModalForm shown;
    ComboBox list;
    NumberBox number;
    OptionButton option;
    CommandButton ok;
    CommandButton cancel;
};

TEST_F(ModalFormOnScreen, RunsTheHandlersWithTheNewValues) {
    test::driveNextDialog([](test::DialogDriver& dialog) {
        EXPECT_EQ(dialog.title(), "Title");
        dialog.choose(0, 1);
        EXPECT_EQ(dialog.number("Number"), 2);
        dialog.setNumber("Number", 12);
        dialog.turnOn("Option");
        dialog.press("OK");
    });
    showModal(shown);
    EXPECT_EQ(log, (Log{"click 1", "ok"}));
    EXPECT_EQ(number.Value, 9);
    EXPECT_TRUE(option.Value);
}

TEST_F(ModalFormOnScreen, AHandlersChangesAreShown) {
    list.Click = [this] {
        list.List = {"three"};
        list.ListIndex = 0;
        list.Enabled = false;
        number.Enabled = false;
        number.Value = 5;
        option.Enabled = false;
    };
    test::driveNextDialog([](test::DialogDriver& dialog) {
        dialog.choose(0, 1);
        EXPECT_EQ(dialog.listRows(0), Log{"three"});
        EXPECT_FALSE(dialog.isListEnabled(0));
        EXPECT_FALSE(dialog.isNumberEnabled("Number"));
        EXPECT_EQ(dialog.number("Number"), 5);
        EXPECT_FALSE(dialog.isEnabled("Option"));
        dialog.press("OK");
    });
    showModal(shown);
}

TEST_F(ModalFormOnScreen, ClosingItPressesCancel) {
    test::ShownDialog seen;
    test::endNextDialog(seen);
    showModal(shown);
    EXPECT_EQ(log, Log{"cancel"});
}

TEST_F(ModalFormOnScreen, SwallowedKeysDontReachTheList) {
    list.KeyDown = [](KeyArguments& arguments) { arguments.KeyCode = 0; };
    list.KeyPress = [](int& key) { key = 0; };
    test::driveNextDialog([](test::DialogDriver& dialog) {
        dialog.typeInto(0, key::down, "");
        EXPECT_EQ(dialog.chosen(0), "one");
        dialog.typeInto(0, 13, "");
    });
    showModal(shown);
    EXPECT_EQ(log, Log{"ok"});
}

TEST_F(ModalFormOnScreen, AScreenReaderGetsTheLabelsAsNames) {
    test::readNextBox([] {
        EXPECT_EQ(test::accessiblePart("Title").role, "dialog");
        EXPECT_EQ(test::accessiblePartsNamed("Number", "number").size(), 1U);
        EXPECT_EQ(test::accessiblePart("Option").role, "radio button");
        EXPECT_TRUE(test::accessiblePart("OK").isDefault);
        EXPECT_FALSE(test::accessiblePart("Cancel").isDefault);
        EXPECT_TRUE(test::press("Cancel"));
    });
    showModal(shown);
    EXPECT_EQ(log, Log{"cancel"});
}

} // namespace
} // namespace window_test
