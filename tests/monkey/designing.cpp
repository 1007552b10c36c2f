// Design mode, and whatever else comes to a monkey's mind.
#include <array>

#include "card/document.h"
#include "monkey/monkey.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit; // keys, buttons and shifts

constexpr std::string_view saveCardFirst = "Do you want to save your card first?";
constexpr std::string_view menuItem = "Options>Show the Design Menu         Shift Ctrl  D";

std::size_t changedMarks(const CardDocument& before, const CardDocument& after) {
    std::size_t changed = 0;
    const std::size_t both = std::min(before.marks.size(), after.marks.size());
    for (std::size_t i = 0; i < both; ++i)
        if (before.marks[i] != after.marks[i]) ++changed;
    return changed;
}

} // namespace

void Monkey::doAnything() {
    constexpr auto keys =
        std::to_array<int>({key::tab, key::enter, key::escape, key::space, key::left, key::right,
                            key::up, key::down, key::home, key::end, key::pageUp, key::pageDown,
                            key::f5, key::f8, key::f1, 66, 71, 73, 76});
    constexpr auto shifts = std::to_array<int>({0, 0, shift::shift, shift::ctrl});
    const auto place = [this] { return static_cast<float>(pick(16000)); };
    adoptNow_ = true;
    doing_ = "anything: ";
    switch (pick(6)) {
    case 0: {
        const int keyCode = oneOf(keys);
        doing_ += "key " + std::to_string(keyCode);
        return toolkit::test::typeKey(keyCode, oneOf(shifts));
    }
    case 1:
        doing_ += "drag";
        toolkit::test::pressMouse(place(), place());
        toolkit::test::moveMouse(place(), place(), button::left);
        return toolkit::test::releaseMouse(place(), place());
    case 2:
        doing_ += "double click";
        return toolkit::test::doubleClick(place(), place());
    case 3:
        doing_ += "right click";
        return toolkit::test::click(place(), place(), button::right);
    default:
        doing_ += "click";
        return toolkit::test::click(place(), place());
    }
}

/// Takes over what can't be foreseen: one mark at most, or the texts of the field that was open and
/// of the one that is.
void Monkey::adopt() {
    const CardDocument found = documentWithTyping(zevlin());
    const CardDocument before = account_.withTyping();
    if (!badCard_) {
        EXPECT_LE(changedMarks(before, found), 2U);
        EXPECT_EQ(before.partner, found.partner);
        EXPECT_EQ(before.cardName, found.cardName);
        EXPECT_GE(zevlin().CardModified, account_.star) << "the star is gone";
        for (std::size_t i = 0; i < std::min(before.texts.size(), found.texts.size()); ++i) {
            const bool isOpen = static_cast<int>(i) + 1 == zevlin().TIndex ||
                                (account_.open && account_.open->field == static_cast<int>(i) + 1);
            EXPECT_TRUE(isOpen || before.texts[i].text == found.texts[i].text) << i + 1;
        }
    }
    account_.card = documentOf(zevlin());
    account_.star = zevlin().CardModified;
    if (account_.open && box() != nullptr && account_.open->field == zevlin().TIndex)
        account_.open->typed = box()->Text;
    else
        account_.open.reset();
}

void Monkey::enterDesign() {
    account_.commit();
    mayKill_ = chance(10);
    if (!choose(menuItem)) return;
    const auto answer = answerTo(saveCardFirst);
    EXPECT_EQ(answer.has_value(), account_.star);
    if (zevlin().MShowShapes.Checked) {
        if (answer == Answer::Yes) finishSave();
        return;
    }
    if (answer == Answer::Yes) finishSave();
    if (zevlin().MShowDesignMenu.Checked) toolkit::test::chooseMenu(menuItem);
    // Hiding the menu may have asked a question and entered the mode.
    EXPECT_FALSE(zevlin().MShowShapes.Checked);
}

void Monkey::leaveDesign() { choose(menuItem); }

void Monkey::design() {
    constexpr auto choices = std::to_array<Choice>({{30, &Monkey::dragInDesign},
                                                    {8, &Monkey::addInDesign},
                                                    {20, &Monkey::keyInDesign},
                                                    {12, &Monkey::choosePen},
                                                    {8, &Monkey::recordTabs},
                                                    {3, &Monkey::autoAdjust},
                                                    {3, &Monkey::saveDesign},
                                                    {4, &Monkey::zoomSome},
                                                    {2, &Monkey::printOrExport},
                                                    {4, &Monkey::doAnything},
                                                    {3, &Monkey::changeTextOptions},
                                                    {2, &Monkey::bringTrouble},
                                                    {3, &Monkey::mendTrouble},
                                                    {1, &Monkey::killIt},
                                                    {1, &Monkey::exitIt},
                                                    {8, &Monkey::leaveDesign}});
    draw(choices);
}

void Monkey::dragInDesign() {
    const bool isMark = chance(50);
    const auto& labels = isMark ? zevlin().AMark : zevlin().AText;
    if (labels.UBound() < 1) return;
    const Label& label =
        labels[static_cast<int>(1 + pick(static_cast<std::size_t>(labels.UBound())))];
    const float x = label.Left + label.Width / 2;
    const float y = label.Top + label.Height / 2;
    const int held = chance(20) ? shift::ctrl : 0;
    doing_ = "drag a field";
    if (chance(15)) {
        popupRow_ = static_cast<int>(pick(3));
        return toolkit::test::click(x, y, button::right);
    }
    toolkit::test::moveMouse(x, y);
    toolkit::test::pressMouse(x, y, button::left, held);
    toolkit::test::moveMouse(x + 30 * static_cast<float>(pick(9)) - 120, y, button::left, held);
    toolkit::test::releaseMouse(x, y, button::left, held);
}

void Monkey::addInDesign() {
    doing_ = "add a field";
    if (zevlin().AMark.UBound() > baseMarks_ + 20 || zevlin().AText.UBound() > baseTexts_ + 10)
        return;
    const auto x = static_cast<float>(pick(9000));
    const auto y = static_cast<float>(pick(9000));
    toolkit::test::moveMouse(x, y);
    toolkit::test::pressMouse(x, y, button::right);
    toolkit::test::moveMouse(x + 300, y, button::right);
    toolkit::test::releaseMouse(x + 300, y, button::right);
}

void Monkey::keyInDesign() {
    constexpr auto arrows = std::to_array<int>({key::left, key::right, key::up, key::down});
    doing_ = "design key";
    if (chance(50)) return toolkit::test::typeKey('Z', shift::ctrl);
    toolkit::test::typeKey(oneOf(arrows), chance(50) ? shift::shift : shift::ctrl);
}

void Monkey::choosePen() {
    constexpr auto items = std::to_array<std::string_view>(
        {"Design>Small", "Design>Medium", "Design>Large", "Design>Black", "Design>Red",
         "Design>Blue", "Design>Checkmark", "Design>Circle", "Design>Text"});
    choose(oneOf(items));
}

void Monkey::recordTabs() {
    choose("Design>Set Tab sequence");
    for (int i = 0; i < 3; ++i) {
        const Label& label =
            zevlin().AMark[static_cast<int>(pick(static_cast<std::size_t>(baseMarks_)))];
        toolkit::test::click(label.Left + label.Width / 2, label.Top + label.Height / 2);
    }
    if (zevlin().MSetTabs.Checked && chance(80)) choose("Design>Set Tab sequence");
}

void Monkey::autoAdjust() { choose("Design>Auto-adjust"); }

void Monkey::saveDesign() { choose("Design>Save Design"); }

} // namespace zev::test
