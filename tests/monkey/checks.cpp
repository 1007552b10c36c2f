// What must hold after every event.
#include <filesystem>
#include <functional>
#include <system_error>

#include "card/document.h"
#include "card/rescue_file.h"
#include "monkey/monkey.h"
#include "toolkit/base/files.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t timeLength = 9; // "00000.00 "

void takeErrorLines(std::string_view content, std::vector<std::string>& errors) {
    while (!content.empty()) {
        const auto end = content.find('\n');
        std::string_view line = content.substr(0, end);
        content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.size() > timeLength && line[5] == '.') line.remove_prefix(timeLength);
        if (line.starts_with("Error")) errors.emplace_back(line);
    }
}

} // namespace

std::vector<std::string> Monkey::takeErrors() {
    std::vector<std::string> errors;
    for (const std::string& line : zevlin().Trace) takeErrorLines(line, errors);
    zevlin().Trace.clear();
    std::error_code ignored;
    for (const fs::path& folder : {dataFolder, programFolder}) {
        const fs::path file = folder / "Trace.txt";
        if (!fs::is_regular_file(file, ignored)) continue;
        const std::string content = toolkit::readFile(file);
        takeErrorLines(std::string_view(content).substr(std::min(traceSeen_, content.size())),
                       errors);
        fs::remove(file, ignored);
        traceSeen_ = fs::exists(file, ignored) ? content.size() : 0;
    }
    return errors;
}

bool Monkey::refusesJobs() const {
    return zevlin_->CurrentPrinter.hdc == 0 || zevlin_->CurrentPrinter.PixelsPerInchX <= 0 ||
           badTarget_;
}

/// Every failure in the trace must come from a trouble that is there.
void Monkey::checkTrace() {
    for (const std::string& line : takeErrors()) {
        const bool isOfJob = line.starts_with("Error in PrintPictureBox at step 1200: 482") ||
                             line.starts_with("Error in PrintPictureBox at step 2300: 482") ||
                             // A right click on the help prints it.
                             line.starts_with("Error in THelp_MouseDown: #");
        // TAB on an item beyond the table of the walk is a failure that is traced.
        const bool isOfWalk = line.starts_with("Error in P1_KeyDown: #9,") ||
                              line.starts_with("Error in xText_LostFocus: #9,");
        // The grid that is the small card reaches the edge, beyond which a word has no end.
        const bool isOfAdjust = line == "Error #9 at 300 in FindCircleAdj";
        EXPECT_TRUE(troubles_->explains(line) || isOfWalk || isOfAdjust ||
                    (isOfJob && refusesJobs()) ||
                    (badCard_ && line.starts_with("Error in GetCardFile")) ||
                    line.starts_with("Error in mpopRename_Click: #58,") ||
                    (badTarget_ && line.starts_with("Error in SaveImageToDisk: #")))
            << line;
        EXPECT_EQ(line.find("Error in an event"), std::string::npos) << line;
        EXPECT_EQ(line.find(" 51,"), std::string::npos) << line;
    }
}

void Monkey::syncOpenField() {
    const Zevlin& now = zevlin();
    const bool isOpen = box() != nullptr && now.TIndex > 0 && now.OrigIndex == now.TIndex;
    if (!isOpen) return account_.commit();
    if (!account_.open || account_.open->field != now.TIndex) account_.openText(now.TIndex);
}

void Monkey::checkCard() {
    const CardDocument found = documentWithTyping(zevlin());
    CardDocument shown = found;
    shown.cardName = zevlin().CardName;
    EXPECT_EQ(difference(account_.withTyping(), shown), "");
    EXPECT_EQ(zevlin().CardModified, account_.star);
    EXPECT_EQ(zevlin().MyName, mine_.name);
    EXPECT_EQ(zevlin().MyNumber, mine_.number);
}

/// The journal holds each change, or an alarm is set to write it.
void Monkey::checkJournal() {
    const Zevlin& now = zevlin();
    const bool isDoubtful = journalDoubtful_ || troubles_->hindersJournal();
    if (!now.CardModified || now.Journal.alarm.isSet() || isDoubtful) return;
    CardDocument kept = readRescue(now.Journal.written).document;
    CardDocument wanted = asStored(documentWithTyping(now));
    // A rebuild removes fields that were added to the layout and not saved.
    kept.marks.resize(wanted.marks.size());
    kept.texts.resize(wanted.texts.size());
    kept.cardName = wanted.cardName;
    EXPECT_EQ(difference(wanted, kept), "");
}

void Monkey::checkRules() {
    const Zevlin& now = zevlin();
    EXPECT_FALSE(now.CText.Visible && now.LText.Visible);
    EXPECT_FALSE(now.Carried.has_value());
    EXPECT_FALSE(now.Printing);
    EXPECT_FALSE(now.Initializing);
    EXPECT_FALSE(now.Zooming);
    EXPECT_FALSE(now.HasJobView);
    EXPECT_FALSE(now.Journal.isHeld);
    EXPECT_FALSE(now.LayoutSetAside.has_value());
    EXPECT_FALSE(now.P2.Visible);
    EXPECT_FALSE(now.PleaseWait.Visible);
    EXPECT_TRUE(now.P1.Visible);
    EXPECT_TRUE(now.MenusEnabled);
    EXPECT_EQ(now.MousePointer == toolkit::MousePointer::Hourglass, false);
    // The fields must lie where the picture has their places.
    constexpr float designTwips = 1198 * pixel;
    EXPECT_NEAR(now.P1.Width / designTwips, now.CardScale, 0.002F);
    const bool fits = now.MFitScreenWidth.Checked || now.MFitScreenHeight.Checked;
    const float wanted = now.ZoomTable.at(fits ? 0 : static_cast<std::size_t>(now.ZoomLevel));
    const float shown = now.P1.Width / pixel / static_cast<float>(now.PBase.width());
    EXPECT_NEAR(shown, wanted, 0.002F) << "step " << now.ZoomLevel;
    if (now.SText.UBound() > 0) {
        EXPECT_EQ(now.SuitColors.size(), static_cast<std::size_t>(now.SText.UBound()) + 1);
    }
    const std::string name = now.CardName.empty() ? "  (unnamed)" : "  ( " + now.CardName + " )";
    EXPECT_EQ(now.Caption, now.FormTitle + name + (now.CardModified ? " *" : ""));
}

/// Every card must be as it was saved last, or as another program has left it.
void Monkey::checkDisk() {
    if (troubles_->isOfFolder()) return;
    for (const auto& [name, card] : files_) {
        if (!card) continue;
        const auto found = onDisk(name);
        if (!found) {
            ADD_FAILURE() << "gone: " << name;
            continue;
        }
        CardDocument wanted = *card;
        wanted.cardName = name;
        EXPECT_EQ(difference(wanted, *found), "") << name;
    }
    EXPECT_FALSE(fs::exists(dataFile("$$Tempcard.zev")));
}

void Monkey::check() {
    const bool designs = zevlin().MShowShapes.Checked;
    if (wasDesigning_ && !designs) {
        account_.clear(zevlin().mBold.Checked);
        account_.composeNames(zevlin().NamesField, mine_, false);
        account_.star = false;
    }
    wasDesigning_ = designs;
    if (!designs) {
        if (adoptNow_) adopt();
        syncOpenField();
        checkCard();
        checkJournal();
    }
    checkRules();
    checkTrace();
    if (chance(5)) checkDisk();
    for (const char character : doing_ + zevlin().Caption)
        digest_ = (digest_ ^ static_cast<unsigned char>(character)) * 1099511628211U;
    if (HasFailure()) return;
    for (const auto& text : account_.card.texts)
        digest_ = (digest_ ^ std::hash<std::string>()(text.text)) * 1099511628211U;
}

} // namespace zev::test
