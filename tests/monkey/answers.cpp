// What the monkey answers to the boxes of the program, and what it does in the chooser.
#include <algorithm>
#include <array>

#include "monkey/monkey.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using toolkit::Answer;
using toolkit::Buttons;

constexpr auto yesNoCancel = std::to_array({Answer::Yes, Answer::No, Answer::Cancel});
constexpr auto yesNo = std::to_array({Answer::Yes, Answer::No});
constexpr auto okCancel = std::to_array({Answer::Ok, Answer::Cancel});
constexpr auto yesNoSaveAs = std::to_array({Answer::Yes, Answer::No, Answer::SaveAs});

constexpr auto cardNames =
    std::to_array<std::string_view>({"Jones", "Smith", "Ann & Bob", "x.y", "Two"});
constexpr auto badNames = std::to_array<std::string_view>({"a/b", "$$tempcard", "what?"});

constexpr std::string_view rescueBox = "Zevlin ended before your changes to '";

/// What a program that isn't in trouble may say; anything else fails.
constexpr auto knownBoxes = std::to_array<std::string_view>(
    {"Do you want to save", "File already exists.", "Do you want to keep the same Partner's",
     "To modify the existing tab sequence", "Printer's page width is less", "Another file already",
     "'a/b' is an invalid", "'$$tempcard' is an invalid", "'what?' is an invalid",
     "Your ZEV files have been moved"});
constexpr auto boxesOfTrouble = std::to_array<std::string_view>(
    {"Zevlin could not use its folder", "The 'ZEV.Ini' file in", "The 'Definitions.Ini' file in",
     "The original distribution file", "Sorry, program error", "Could not save card image",
     "Error ", "Program error ", "Printer error 'PPB1'", "'"});

} // namespace

/// Kills the program in an open box now and then. Its alarms go off before, as they do in a box.
void Monkey::killMaybe() {
    if (!mayKill_ || !chance(50)) return;
    toolkit::test::elapseAlarms();
    throw Killed{};
}

Answer Monkey::answerBox(const toolkit::MessageBox& box) {
    const Answer answer = answerFor(box);
    asked_.push_back({box.text, answer});
    return answer;
}

Answer Monkey::answerFor(const toolkit::MessageBox& box) {
    const std::string& text = box.text;
    if (text.starts_with(rescueBox)) return answerRescue(box);
    const bool isOfPrinter = text.find("Printer Error #") != std::string::npos ||
                             text.starts_with("Printer error 'PPB1'");
    const bool isChanged = text.find(" was changed by another program") != std::string::npos;
    const bool isTrouble = troubles_->present() != Troubles::Kind::None;
    const bool isKnown = beginsAsOne(text, knownBoxes) || isChanged ||
                         (badTarget_ && text.starts_with("Could not save card image")) ||
                         (isOfPrinter && (refusesJobs() || isTrouble)) ||
                         (isTrouble && beginsAsOne(text, boxesOfTrouble)) ||
                         text.starts_with("This card file contains errors");
    EXPECT_TRUE(isKnown) << text;
    if (text.starts_with("Do you want to save")) killMaybe();
    switch (box.buttons) {
    case Buttons::Ok:
        return Answer::Ok;
    case Buttons::OkCancel:
        return oneOf(okCancel);
    case Buttons::YesNo:
        return oneOf(yesNo);
    case Buttons::YesNoCancel:
        return oneOf(yesNoCancel);
    case Buttons::YesNoSaveAs:
        return oneOf(yesNoSaveAs);
    }
    return Answer::Cancel;
}

/// The program offers the oldest first, each once, until one is wanted back.
Answer Monkey::answerRescue(const toolkit::MessageBox& box) {
    const std::size_t place = rescuesAsked_++;
    EXPECT_FALSE(rescued_);
    if (!isStarting_ || place >= unsaved_.size()) {
        ADD_FAILURE() << "nothing is left of: " << box.text;
        return Answer::No;
    }
    const std::string& name = unsaved_[place].card.cardName;
    EXPECT_EQ(box.text, std::string(rescueBox) + (name.empty() ? "(unnamed)" : name) +
                            "' were saved. Do you want them back?");
    if (chance(60)) {
        rescued_ = place;
        return Answer::Yes;
    }
    if (unsaved_.size() < 4 && chance(50)) return Answer::Cancel;
    givenUp_.push_back(place);
    return Answer::No;
}

std::string Monkey::answerInputBox(const toolkit::InputBox& /*box*/) {
    killMaybe();
    return inputAnswer_;
}

fs::path Monkey::answerFileQuestion() {
    killMaybe();
    switch (pick(10)) {
    case 0:
        return {};
    case 1:
        badTarget_ = true;
        return home / "no such folder" / "page.pdf";
    case 2:
        badTarget_ = true;
        return home;
    default:
        return home / "page.pdf";
    }
}

void Monkey::answerPopupMenu(std::span<const toolkit::PopupRow> rows) {
    ++popups;
    if (popupRow_ < 0) return;
    const auto& row = rows[static_cast<std::size_t>(popupRow_) % rows.size()];
    if (row.item == nullptr || !row.item->Enabled) return;
    const bool isOfText = rows.size() == 9;
    if (isOfText) {
        syncOpenField();
        constexpr auto keys = std::to_array<int>({26, 0, 2, 9, 12, 7, 0, 3, 22});
        noteStyle(keys.at(static_cast<std::size_t>(popupRow_) % rows.size()));
    }
    row.Click();
}

std::optional<Answer> Monkey::answerTo(std::string_view text) const {
    const auto last = std::find_if(asked_.rbegin(), asked_.rend(), [text](const Asked& asked) {
        return asked.text.find(text) != std::string::npos;
    });
    return last == asked_.rend() ? std::nullopt : std::optional(last->answer);
}

std::string Monkey::lastChosen(bool isToOpen) const {
    const auto last = std::find_if(chosen_.rbegin(), chosen_.rend(), [&](const Chosen& chosen) {
        return chosen.isToOpen == isToOpen;
    });
    return last == chosen_.rend() ? std::string() : last->name;
}

void Monkey::chooseName(const std::string& name) {
    if (zevlin().ActiveControl != &zevlin().TSaveAs)
        return toolkit::test::typeKey(toolkit::key::escape);
    toolkit::test::typeKey('A', toolkit::shift::ctrl);
    toolkit::test::typeText(name);
    toolkit::test::typeKey(toolkit::key::enter);
}

void Monkey::chooseRow() {
    const auto& list = zevlin().FileList;
    if (!list.Visible || list.List.empty()) return chooseName(std::string(oneOf(cardNames)));
    const auto row = static_cast<int>(pick(list.List.size()));
    const auto point = toolkit::test::pointOnRow(list, row);
    if (chance(50)) return toolkit::test::doubleClick(point.x, point.y);
    toolkit::test::click(point.x, point.y);
    toolkit::test::typeKey(toolkit::key::enter);
}

void Monkey::renameRow(const std::string& name, const std::string& newName) {
    const auto file = [this](const std::string& card) { return dataFile(card + ".zev"); };
    if (name == newName || fs::exists(file(name)) || !fs::exists(file(newName))) return;
    auto known = files_.extract(name);
    if (known.empty()) return;
    known.key() = newName;
    files_.erase(newName);
    files_.insert(std::move(known));
    if (account_.card.cardName == name) account_.card.cardName = newName;
}

void Monkey::noteDeleted(const std::string& name) {
    if (fs::exists(dataFile(name + ".zev"))) return;
    files_.erase(name);
    if (account_.card.cardName == name) account_.card.cardName.clear();
}

/// By the pop-up menu or a key: open, delete, rename.
void Monkey::workOnRow() {
    const auto& list = zevlin().FileList;
    if (!list.Visible || list.List.empty()) return toolkit::test::typeKey(toolkit::key::escape);
    const auto row = pick(list.List.size());
    const std::string name = list.List[row];
    const auto point = toolkit::test::pointOnRow(list, static_cast<int>(row));
    popupRow_ = static_cast<int>(pick(3));
    inputAnswer_ = chance(80) ? std::string(oneOf(cardNames)) : std::string();
    const bool keptKill = std::exchange(mayKill_, false);
    if (chance(50)) {
        toolkit::test::click(point.x, point.y, toolkit::button::right);
    } else {
        constexpr auto keys =
            std::to_array<int>({toolkit::key::menu, toolkit::key::deleteKey, toolkit::key::f2});
        toolkit::test::click(point.x, point.y);
        toolkit::test::typeKey(keys.at(static_cast<std::size_t>(popupRow_)));
    }
    mayKill_ = keptKill;
    if (popupRow_ == 1) noteDeleted(name);
    if (popupRow_ == 2) renameRow(name, inputAnswer_);
    popupRow_ = -1;
}

void Monkey::actInChooser() {
    const auto isOver = [this] { return zevlin().ChooserCancelled || zevlin().ChooserTaken; };
    if (chosen_.empty() || chosen_.back().name != "?")
        chosen_.push_back({zevlin().Caption.find("Open an existing") != std::string::npos, "?"});
    // The card that was saved before opening the next one may be renamed or deleted now.
    if (chosen_.back().isToOpen && !isStarting_) finishQuestion();
    const auto die = pick(20);
    if (die < 3) {
        toolkit::test::typeKey(toolkit::key::escape);
    } else if (die < 11) {
        chooseName(std::string(oneOf(cardNames)));
    } else if (die < 17) {
        chooseRow();
    } else if (die < 19) {
        workOnRow();
    } else {
        chooseName(std::string(oneOf(badNames)));
    }
    if (!isOver()) return;
    const std::string name(toolkit::trim(zevlin().TSaveAs.Text));
    const bool isBad = std::ranges::find(badNames, name) != badNames.end();
    chosen_.back().name = zevlin().ChooserCancelled || isBad ? "" : name;
}

} // namespace zev::test
