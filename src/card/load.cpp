#include "card/load.h"

#include <filesystem>
#include <string>
#include <utility>

#include "card/card_file.h"
#include "card/card_names.h"
#include "card/document.h"
#include "card/file_seen.h"
#include "card/names_line.h"
#include "card/undo_card.h"
#include "form/background.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/read_comment.h"
#include "text/escapes.h"
#include "toolkit/base/files.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/dialog.h"

namespace zev {
namespace {

enum class Loaded { Whole, Bad };

void tellBadCard() {
    toolkit::tell("This card file contains errors and cannot be used", toolkit::Icon::Exclamation);
}

void loadMark(Zevlin& form, const MarkRecord& record) {
    if (record.number == 0 || record.number > form.AMark.UBound()) return;
    form.AMark[record.number].Visible = record.set;
}

toolkit::Alignment alignmentOf(int switches) {
    return (switches & text_switch::left) != 0 ? toolkit::Alignment::Left
                                               : toolkit::Alignment::Center;
}

void applyStyles(Zevlin& form, const TextRecord& record) {
    if (record.style == TextRecord::Style::None) return;
    toolkit::Label& text = form.AText[record.number];
    const bool bold = (record.switches & text_switch::bold) != 0;
    text.Font.Italic = (record.switches & text_switch::italic) != 0;
    text.Alignment = alignmentOf(record.switches);
    if (record.style == TextRecord::Style::Suffix) {
        if (!form.mBold.Checked) text.Font.Bold = bold;
        return;
    }
    text.Font.Bold = bold || form.mBold.Checked;
    form.Highlight[record.number].Visible = (record.switches & text_switch::highlight) != 0;
}

void loadText(Zevlin& form, const TextRecord& record) {
    if (record.number == 0 || record.number > form.AText.UBound()) return;
    applyStyles(form, record);
    std::string text = record.text;
    AmpRem(text);
    AmpAdd(text);
    showText(form, record.number, text);
}

Loaded readRecords(Zevlin& form, CardReader& card, const std::filesystem::path& path) {
    form.PartnerName = card.readPartnerName();
    form.PartnerNumber = card.readPartnerNumber();
    const int marks = card.readCount();
    if (marks < 1) {
        tellBadCard();
        return Loaded::Bad;
    }
    for (int i = 1; i <= marks; ++i) loadMark(form, card.readMark());
    const int texts = card.readCount();
    if (texts < 1) {
        // The line has the form of a failure's, and there is none: number 0 and no text.
        Traceit(form, "Error in GetCardFile - bad card: " + toolkit::displayText(path) + ", 0, ");
        tellBadCard();
        return Loaded::Bad;
    }
    for (int i = 1; i <= texts; ++i) loadText(form, card.readText());
    return Loaded::Whole;
}

/// The card that a rebuild carries is whole in memory, whatever became of its temporary file.
void loadCarried(Zevlin& form) {
    showDocument(form, form.Carried->document);
    ResetMod(form);
    form.CardVersion = form.VersionSeen = form.ProgramVersion;
}

void loadCard(Zevlin& form) {
    CreateBG(form, form.BGPat, 0, 0);
    form.VersionSeen.clear();
    // The path comes from the name before it is cleaned.
    const auto path = cardPath(form);
    form.CardName = cleanedCardName(form.CardName);
    ResetMod(form);
    form.OrigText.clear();
    form.OrigIndex = 0;
    if (form.Carried) return loadCarried(form);
    if (!std::filesystem::exists(path)) {
        form.CardName.clear();
        return;
    }
    loadCardFrom(form, path);
}

} // namespace

void loadCardFrom(Zevlin& form, const std::filesystem::path& file) {
    // The card's own file counts as seen only once it is read, and not at all where the card has
    // another name than the file.
    rememberNoFile(form);
    std::string content = toolkit::readFile(file);
    if (file == cardPath(form)) rememberFile(form, file, content);
    CardReader card(std::move(content), form.VersionSeen,
                    [&form](toolkit::TextInput& input) { return SkipComment(form, input); });
    if (readRecords(form, card, file) == Loaded::Bad) return;
    ShowNames(form, NamesUpdate::FillEmpty);
    ResetMod(form);
    form.CardVersion = form.VersionSeen;
}

void GetCardFile(Zevlin& form) {
    Traceit(form, "GetCardFile");
    trapped(form, "Error in GetCardFile ", [&] { loadCard(form); });
    if (!form.Carried) beginHistory(form, true);
}

} // namespace zev
