// The monkey's home, its dice, and the course of its events.
#include "monkey/monkey.h"

#include <algorithm>
#include <array>
#include <iostream>

#include "form/write_options.h"
#include "layout/write_layout.h"
#include "monkey/small_card.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/picture/gif_file.h"
#include "toolkit/print/print_dialog.h"
#include "toolkit/print/printer.h"
#include "toolkit/testing/test_clipboard.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/program.h"
#include "toolkit/window/screen.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

/// The screen is so small that no fit goes beyond the picture's full size: such a fit isn't shown,
/// and the fields would be misplaced after it.
constexpr float screenTwips = 12900;
constexpr double clockStart = 1795000000;

} // namespace

Monkey::Monkey() {
    toolkit::overrideScreen({.width = screenTwips, .height = screenTwips});
    toolkit::overrideClock(clockStart);
    toolkit::answerDialogsWith(
        {.message = [this](const toolkit::MessageBox& box) { return answerBox(box); },
         .input = [this](const toolkit::InputBox& box) { return answerInputBox(box); },
         .popup = [this](std::span<const toolkit::PopupRow> rows) { answerPopupMenu(rows); },
         .file = [this](const toolkit::FileQuestion&) { return answerFileQuestion(); }});
}

Monkey::~Monkey() {
    toolkit::answerPrinterSetupWith({});
    window.reset();
    zevlin_.reset();
    secondCopy_.reset();
    troubles_.reset();
}

std::size_t Monkey::pick(std::size_t count) { return random_() % count; }

void Monkey::draw(std::span<const Choice> choices) {
    int weights = 0;
    for (const Choice& choice : choices) weights += choice.weight;
    auto drawn = static_cast<int>(pick(static_cast<std::size_t>(weights)));
    for (const Choice& choice : choices) {
        drawn -= choice.weight;
        if (drawn < 0) return (this->*choice.act)();
    }
}

void Monkey::setUpHome(const Course& course) {
    troubles_ = std::make_unique<Troubles>(dataFolder, home / "state");
    baseLayout_ = course.onInstalledLayout ? toolkit::readFile(programFolder / "Definitions.Ini.15")
                                           : smallCard();
    if (!course.onInstalledLayout) {
        toolkit::writeFile(programFolder / "Definitions.Ini.15", baseLayout_);
        toolkit::writeFile(dataFolder / "Convention card.gif", toolkit::gifFile(smallPicture()));
    }
    writeLayout(baseLayout_);
    writeOptions("Zoom=5\r\nName=Kim\r\n");
}

void Monkey::run(const Course& course) {
    random_.seed(course.seed);
    // The account begins with nothing on the clipboard; a test before this one may have left
    // something.
    toolkit::test::fillClipboard("");
    setUpHome(course);
    startAgain();
    baseMarks_ = zevlin().AMark.UBound();
    baseTexts_ = zevlin().AText.UBound();
    while (events_ < course.events && !HasFailure()) step();
    std::cout << "seed " << course.seed << ": " << events_ << " events, " << saves_ << " saves, "
              << jobs_ << " jobs, " << troubleCount_ << " troubles, " << deaths_ << " deaths, "
              << rescues_ << " rescues, digest " << digest_ << std::endl;
    if (!HasFailure()) return;
    std::string last;
    for (const std::string& event : history_) last += "\n  " + event;
    ADD_FAILURE() << "seed " << course.seed << " at event " << events_
                  << ", the last ones:" << last;
}

void Monkey::step() {
    ++events_;
    asked_.clear();
    chosen_.clear();
    doing_.clear();
    mayKill_ = badTarget_ = badCard_ = adoptNow_ = isSettled_ = false;
    popupRow_ = -1;
    try {
        act();
        toolkit::test::endEvent();
    } catch (const Killed&) {
        noteKilled();
    } catch (const toolkit::ProgramEnded&) {
        noteEnded();
    } catch (const std::exception& failure) {
        ADD_FAILURE() << "an exception escaped: " << failure.what();
    }
    if (!HasFailure()) check();
    constexpr std::size_t told = 25;
    for (const Asked& asked : asked_)
        doing_ += " | " + asked.text.substr(0, told) + ": " +
                  std::to_string(static_cast<int>(asked.answer));
    for (const Chosen& chosen : chosen_) doing_ += " | chosen '" + chosen.name + "'";
    history_.push_back(doing_);
    if (history_.size() > told) history_.pop_front();
}

void Monkey::act() {
    if (zevlin().THelp.Visible) return doAnything();
    if (zevlin().MShowShapes.Checked) return design();
    constexpr auto inBox = std::to_array<Choice>({{30, &Monkey::typeSome},
                                                  {12, &Monkey::editByKey},
                                                  {6, &Monkey::typeSuit},
                                                  {8, &Monkey::leaveField},
                                                  {5, &Monkey::styleByKey},
                                                  {4, &Monkey::undoTyping},
                                                  {4, &Monkey::copySome},
                                                  {4, &Monkey::pasteSome}});
    if (isInBox() && chance(50)) return draw(inBox);
    constexpr auto everywhere = std::to_array<Choice>({{160, &Monkey::clickAMark},
                                                       {140, &Monkey::clickAText},
                                                       {20, &Monkey::styleByPopup},
                                                       {40, &Monkey::walkByKey},
                                                       {40, &Monkey::spaceOnCard},
                                                       {60, &Monkey::doAnything},
                                                       {30, &Monkey::moveCard},
                                                       {22, &Monkey::zoomSome},
                                                       {12, &Monkey::changeTextOptions},
                                                       {5, &Monkey::chooseColor},
                                                       {10, &Monkey::nameSomebody},
                                                       {8, &Monkey::makeNew},
                                                       {20, &Monkey::saveIt},
                                                       {5, &Monkey::saveItAs},
                                                       {12, &Monkey::openOne},
                                                       {5, &Monkey::printOrExport},
                                                       {2, &Monkey::setUpPrinter},
                                                       {2, &Monkey::showHelp},
                                                       {3, &Monkey::copyElsewhere},
                                                       {2, &Monkey::exchangePrinters},
                                                       {20, &Monkey::passTime},
                                                       {2, &Monkey::shiftTheWindow},
                                                       {1, &Monkey::switchTrace},
                                                       {5, &Monkey::enterDesign},
                                                       {8, &Monkey::bringTrouble},
                                                       {14, &Monkey::mendTrouble},
                                                       {6, &Monkey::workBehind},
                                                       {3, &Monkey::runSecondCopy},
                                                       {3, &Monkey::endSecondCopy},
                                                       {6, &Monkey::killIt},
                                                       {3, &Monkey::exitIt}});
    draw(everywhere);
}

} // namespace zev::test
