// The chooser by keyboard alone.
#include "card/chooser_keys.h"

#include <filesystem>

#include "card/write_card.h"
#include "chooser_form_test.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

namespace key = toolkit::key;
namespace shift = toolkit::shift;
using toolkit::test::typeKey;
using toolkit::test::typeText;

class ChooserKeys : public ChooserTest {
  protected:
    void SetUp() override {
        start();
        for (const char* name : {"Adams", "Brown", "Clark"}) writeCard(name, cardFile({}));
    }
    /// Goes to the list and selects a card by the arrow keys.
    static void select(int row) {
        typeKey(key::tab);
        for (int i = 0; i <= row; ++i) typeKey(key::down);
    }
    [[nodiscard]] bool exists(const std::string& name) const {
        return std::filesystem::exists(dataFile(name + ".zev"));
    }
    /// The captions of the next pop-up menu go into `captions`.
    void notePopup() {
        answerPopup([this](std::span<const toolkit::PopupRow> rows) {
            captions.clear();
            for (const auto& row : rows) captions.push_back(row.item->Caption);
        });
    }
    std::vector<std::string> captions;
};

TEST_F(ChooserKeys, MenuKeyAndShiftF10OpenThePopupOfTheSelectedCard) {
    inChooser([&] {
        select(1);
        for (const auto& [code, held] :
             {std::pair(key::menu, 0), std::pair(key::f10, +shift::shift)}) {
            notePopup();
            typeKey(code, held);
            EXPECT_EQ(captions,
                      (std::vector<std::string>{"&Open Brown", "&Delete Brown", "&Rename Brown"}));
        }
        EXPECT_EQ(popups, 2);
        leave();
    });
}

TEST_F(ChooserKeys, ThePopupByKeyNamesTheCardWhateverWasTyped) {
    inChooser([&] {
        select(1);
        typeKey(key::tab, shift::shift);
        typeText("Zorn");
        typeKey(key::tab);
        answerPopup([this](std::span<const toolkit::PopupRow> rows) {
            EXPECT_EQ(form.TSaveAs.Text, "Brown");
            rows[0].Click();
        });
        typeKey(key::menu);
    });
    EXPECT_EQ(chosen, "Brown");
}

TEST_F(ChooserKeys, WithoutASelectedCardTheKeysDoNothing) {
    inChooser([&] {
        typeKey(key::tab);
        for (const int code : {key::menu, key::deleteKey, key::f2}) typeKey(code);
        typeKey(key::f10, shift::shift);
        EXPECT_EQ(popups, 0);
        EXPECT_EQ(form.FileList.List.size(), 3U);
        leave();
    });
    EXPECT_TRUE(inputs.empty());
}

TEST_F(ChooserKeys, DeleteDoesWhatThePopupsDeleteDoes) {
    inChooser([&] {
        select(1);
        typeKey(key::deleteKey);
        EXPECT_FALSE(exists("Brown"));
        EXPECT_EQ(form.FileList.List, (std::vector<std::string>{"Adams", "Clark"}));
        EXPECT_EQ(toolkit::test::shownText(form.TSaveAs), "");
        EXPECT_TRUE(traced("mpopDelete_Click"));
        typeKey(key::deleteKey);
        EXPECT_EQ(form.FileList.List.size(), 2U);
        leave();
    });
    EXPECT_TRUE(boxes.empty());
}

TEST_F(ChooserKeys, AHeldDeleteDeletesOneCard) {
    inChooser([&] {
        select(0);
        toolkit::test::pressKey(key::deleteKey);
        typeKey(key::down);
        toolkit::test::repeatKey(key::deleteKey);
        EXPECT_EQ(form.FileList.List.size(), 2U);
        leave();
    });
}

TEST_F(ChooserKeys, DeleteWithAModifierDeletesNothing) {
    inChooser([&] {
        select(1);
        typeKey(key::deleteKey, shift::shift);
        typeKey(key::deleteKey, shift::ctrl);
        EXPECT_EQ(form.FileList.List.size(), 3U);
        leave();
    });
}

TEST_F(ChooserKeys, DeletingTheLastCardGivesTheNameTheKeys) {
    inChooser([&] {
        typeKey(key::tab);
        for (int left = 3; left > 0; --left) {
            typeKey(key::down);
            typeKey(key::deleteKey);
        }
        EXPECT_FALSE(toolkit::test::isShown(form.FileList));
        EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.TSaveAs));
        typeText("Jones");
        typeKey(key::enter);
    });
    EXPECT_EQ(chosen, "Jones");
}

TEST_F(ChooserKeys, F2DoesWhatThePopupsRenameDoes) {
    inChooser([&] {
        select(1);
        answerInput("Baker");
        typeKey(key::f2);
        EXPECT_EQ(inputs.at(0).title, "Rename card");
        EXPECT_EQ(inputs.at(0).preset, "Brown");
        EXPECT_EQ(form.FileList.List, (std::vector<std::string>{"Adams", "Baker", "Clark"}));
        leave();
    });
    EXPECT_TRUE(exists("Baker"));
    EXPECT_FALSE(exists("Brown"));
}

TEST_F(ChooserKeys, InTheNameTheyActOnTheCardThatItNames) {
    inChooser([&] {
        typeKey(key::down);
        EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.TSaveAs));
        notePopup();
        typeKey(key::menu);
        EXPECT_EQ(captions.at(0), "&Open Adams");
        answerInput("Abel");
        typeKey(key::f2);
        EXPECT_EQ(form.FileList.List.front(), "Abel");
        EXPECT_EQ(form.TSaveAs.Text, "Abel");
        leave();
    });
}

TEST_F(ChooserKeys, InTheNameDeleteDeletesLetters) {
    inChooser([&] {
        typeKey(key::down);
        typeKey(key::deleteKey);
        EXPECT_EQ(toolkit::test::shownText(form.TSaveAs), "");
        leave();
    });
    EXPECT_TRUE(exists("Adams"));
}

TEST_F(ChooserKeys, InTheNameTheyDoNothingOnceAnotherNameIsTyped) {
    inChooser([&] {
        typeKey(key::down);
        typeText("Zorn");
        typeKey(key::menu);
        typeKey(key::f2);
        EXPECT_EQ(popups, 0);
        EXPECT_TRUE(inputs.empty());
        leave();
    });
}

TEST_F(ChooserKeys, ALongNameHasAToolTipOfAllOfIt) {
    const std::string name(120, 'm');
    writeCard(name, cardFile({}));
    inChooser([&] {
        const auto tip = [&](int row) {
            return toolkit::test::toolTipAt(form.FileList,
                                            toolkit::test::pointOnRow(form.FileList, row));
        };
        ASSERT_EQ(form.FileList.List.at(3), name);
        EXPECT_EQ(tip(3), name);
        EXPECT_EQ(tip(0), "");
        leave();
    });
}

} // namespace
} // namespace zev::test
