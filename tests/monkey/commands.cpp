// Commands: files, names, the view, jobs.
#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

#include "card/card_file.h"
#include "monkey/monkey.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/files.h"
#include "toolkit/base/key.h"
#include "toolkit/print/print_dialog.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_dialogs.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/input/clipboard.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using toolkit::Answer;

constexpr std::string_view keepPartner = "Do you want to keep the same Partner's";

/// Printers as they shouldn't be: gone, without a resolution, with a narrow page.
toolkit::Printer oddPrinter(std::size_t kind) {
    toolkit::Printer printer = toolkit::printerNamed(toolkit::printToPdfName);
    if (kind == 0) printer.hdc = 0;
    if (kind == 1) printer.PixelsPerInchX = printer.PixelsPerInchY = 0;
    if (kind == 2) printer.Width = printer.ScaleWidth = 6 * 1440;
    return printer;
}

} // namespace

bool Monkey::choose(std::string_view item) {
    doing_ = item;
    return toolkit::test::chooseMenu(item);
}

void Monkey::moveCard() {
    constexpr auto keys =
        std::to_array<int>({toolkit::key::up, toolkit::key::down, toolkit::key::pageUp,
                            toolkit::key::pageDown, toolkit::key::home, toolkit::key::home});
    doing_ = "move the card";
    if (chance(20)) return toolkit::test::turnWheel(chance(50) ? 120 : -120);
    if (box() == nullptr || chance(50)) toolkit::test::typeKey(oneOf(keys));
    if (box() == nullptr) toolkit::test::typeKey(toolkit::key::home);
    if (account_.open) noteEdited();
}

void Monkey::zoomSome() {
    constexpr auto items = std::to_array<std::string_view>(
        {"View>Zoom In (Bigger)                   Ctrl +",
         "View>Zoom Out (Smaller)               Ctrl  -",
         "View>Fit to screen width                Ctrl  0", "View>Fit to screen height"});
    // A card that is too small to be clicked is made larger.
    choose(zevlin().P1.Width < 5000 ? items[0] : oneOf(items));
}

void Monkey::changeTextOptions() {
    constexpr auto items = std::to_array<std::string_view>(
        {"Options>Font size>Smaller", "Options>Font size>Normal", "Options>Font size>Larger",
         "Options>Font size>Big", "Options>Boldface", "Options>Left-Justify all text",
         "Options>Fill-in Checkmarks", "Options>Use alternate print method"});
    const std::size_t item = pick(items.size());
    if (!choose(items.at(item))) return;
    if (item == 4) account_.setAll(text_switch::bold, zevlin().mBold.Checked);
    if (item == 5) account_.setAll(text_switch::left, zevlin().mLeftJustify.Checked);
}

void Monkey::chooseColor() {
    if (chance(40)) {
        choose("Options>Color Management>ACBL Compliant");
        return;
    }
    if (!choose("Options>Color Management>Custom...")) return;
    const auto clickOn = [](const toolkit::Control& control) {
        const auto point = toolkit::test::pointOn(control);
        toolkit::test::click(point.x, point.y);
    };
    const auto& sample = zevlin().ColorSample[static_cast<int>(
        pick(static_cast<std::size_t>(std::max(1, zevlin().ColorSample.UBound()))))];
    const auto point = toolkit::test::pointOn(zevlin().ColorPic, sample);
    toolkit::test::click(point.x, point.y);
    clickOn(zevlin().ColorBut.at(pick(2)));
}

void Monkey::nameSomebody() {
    constexpr auto answers = std::to_array<std::string_view>(
        {"", " ", "Kim", "Joe Smith 12345", "Bob & Sue", "Ann^h 7", "  Lee  "});
    inputAnswer_ = oneOf(answers);
    mayKill_ = chance(10);
    const bool isOwn = chance(50);
    account_.commit();
    if (!choose(isOwn ? "Options>My Name" : "Options>Partner's Name") || inputAnswer_.empty())
        return;
    CardPartner& named = isOwn ? mine_ : account_.card.partner;
    if (inputAnswer_ == " ") {
        named = {};
        if (!isOwn) account_.star = true;
        return;
    }
    const CardPartner player = playerFrom(inputAnswer_);
    if (!isOwn && player == named) return;
    named = player;
    account_.composeNames(zevlin().NamesField, mine_, true);
    if (!isOwn) account_.star = true;
}

std::optional<CardDocument> Monkey::onDisk(const std::string& name) const {
    const fs::path file = dataFile(name + ".zev");
    std::error_code ignored;
    if (!fs::is_regular_file(file, ignored)) return std::nullopt;
    try {
        CardDocument card = readCard(toolkit::readFile(file));
        card.cardName = name;
        return card;
    } catch (const toolkit::RunTimeError&) {
        return std::nullopt;
    }
}

/// Whether the file holds the card as it is now.
bool Monkey::noteSaved(const std::string& name) {
    CardDocument wanted = asStored(account_.card);
    wanted.cardName = name;
    const auto found = onDisk(name);
    if (!found || !difference(wanted, *found).empty()) return false;
    files_[name] = *found;
    account_.card.cardName = name;
    account_.star = false;
    ++saves_;
    return true;
}

/// Whether the last chooser led to a save.
bool Monkey::givesPartnerUp() const {
    return answerTo(keepPartner) == Answer::No && !lastChosen(false).empty() &&
           answerTo("File already exists") != Answer::No;
}

/// Without a star the card must be in its file.
void Monkey::finishSave() {
    const std::string chosen =
        answerTo("File already exists") == Answer::No ? std::string() : lastChosen(false);
    const CardPartner partner = account_.card.partner;
    if (givesPartnerUp()) account_.card.partner = {};
    const bool isSaved = !zevlin().CardModified;
    for (const std::string& name : {chosen, account_.card.cardName})
        if (isSaved && !name.empty() && noteSaved(name)) return;
    // Nothing may be saved without need.
    EXPECT_FALSE(isSaved && account_.star)
        << "no file holds the card '" << account_.card.cardName << "', '" << chosen << "'";
    if (zevlin().CardName == chosen)
        account_.card.cardName = chosen;
    else
        account_.card.partner = partner;
}

/// The consequences of the answer to the question about unsaved changes.
void Monkey::finishQuestion() {
    if (std::exchange(isSettled_, true)) return;
    const auto answer = answerTo(saveFirst);
    EXPECT_EQ(answer.has_value(), account_.star) << "asked without a change, or not with one";
    if (answer == Answer::Yes) finishSave();
    if (answer == Answer::No) account_.star = false;
}

void Monkey::makeNew() {
    account_.commit();
    mayKill_ = chance(10);
    if (!choose("File>New")) return;
    finishQuestion();
    if (account_.star) return;
    account_.clear(zevlin().mBold.Checked);
    account_.composeNames(zevlin().NamesField, mine_, false);
    account_.star = false;
}

void Monkey::saveIt() {
    account_.commit();
    if (choose("File>Save")) finishSave();
}

void Monkey::saveItAs() {
    if (!choose("File>Save As...")) return;
    // Cancelled at its first question, it leaves the field open.
    syncOpenField();
    finishSave();
}

void Monkey::openOne() {
    account_.commit();
    mayKill_ = chance(10);
    if (!choose("File>Open...")) return;
    finishQuestion();
    if (!account_.star) openedNow(lastChosen(true));
}

void Monkey::openedNow(const std::string& name) {
    const bool bold = zevlin().mBold.Checked;
    account_.clear(bold);
    account_.composeNames(zevlin().NamesField, mine_, false);
    account_.card.cardName = name;
    const auto file = files_.find(name);
    if (!name.empty() && file != files_.end() && fs::exists(dataFile(name + ".zev"))) {
        badCard_ = adoptNow_ = !file->second;
        if (file->second) {
            account_.load(*file->second, bold);
            account_.composeNames(zevlin().NamesField, mine_, false);
        }
    }
    account_.star = false;
}

void Monkey::printOrExport() {
    constexpr auto items = std::to_array<std::string_view>(
        {"File>Print card", "File>Print Partner's card", "File>Print two cards",
         "File>Export Image to file as...>GIF", "File>Export Image to file as...>PNG",
         "File>Export Image to file as...>BMP", "File>Export Partner Image to file as..>BMP",
         "File>Copy to Clipboard"});
    constexpr auto images = std::to_array<std::string_view>({"picture", "picture.bmp", "", "a/b"});
    inputAnswer_ = oneOf(images);
    badTarget_ = inputAnswer_ == "a/b";
    mayKill_ = chance(20);
    if (!choose(oneOf(items))) return;
    ++jobs_;
    if (!toolkit::hasClipboardText()) elsewhere_.clear();
}

void Monkey::setUpPrinter() {
    const std::size_t kind = pick(6);
    toolkit::answerPrinterSetupWith([kind](const toolkit::Printer&) {
        return kind < 5 ? std::optional(oddPrinter(kind)) : std::nullopt;
    });
    if (zevlin().PrintMethod == 2)
        toolkit::test::driveNextDialog(
            [](toolkit::test::DialogDriver& dialog) { dialog.press("Cancel"); });
    choose("File>Printer Setup...");
}

void Monkey::showHelp() { choose("Help"); }

/// Changes the printers that the system reports from now on.
void Monkey::exchangePrinters() {
    doing_ = "exchange the printers";
    toolkit::overridePrinters({oddPrinter(pick(6))});
}

void Monkey::passTime() {
    doing_ = "time passes";
    constexpr double start = 1795000000;
    toolkit::overrideClock(start + 7.0 * events_);
    toolkit::test::elapseAlarms();
}

void Monkey::shiftTheWindow() {
    doing_ = "shift the window";
    const int step = static_cast<int>(pick(80)) - 40;
    if (chance(50)) return toolkit::test::shiftWindow(step, step);
    toolkit::test::resizeWindow(step, -step);
}

void Monkey::switchTrace() {
    doing_ = "switch the trace";
    toolkit::test::typeKey(toolkit::key::f1 + 2,
                           chance(30) ? toolkit::shift::shift : toolkit::shift::alt);
    if (account_.open) noteEdited();
}

} // namespace zev::test
