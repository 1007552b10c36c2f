#include "card/save.h"

#include <string>
#include <utility>

#include "app/trace.h"
#include "app/zevlin.h"
#include "card/card_file.h"
#include "card/lifecycle.h"
#include "card/modified.h"
#include "text/edit_field.h"
#include "text/escapes.h"
#include "toolkit/ansi.h"
#include "toolkit/files.h"
#include "toolkit/program.h"
#include "view/time_stamp.h"

namespace zev {
namespace {

int switchesOf(const Zevlin& form, int index) {
    const toolkit::Label& text = form.AText[index];
    int switches = 0;
    if (text.Font.Bold || form.mBold.Checked) switches |= text_switch::bold;
    if (text.Font.Italic) switches |= text_switch::italic;
    if (text.Alignment == toolkit::Alignment::Left) switches |= text_switch::left;
    if (form.Highlight[index].Visible) switches |= text_switch::highlight;
    return switches;
}

CardDocument documentOf(const Zevlin& form) {
    CardDocument document;
    document.cardName = form.CardName;
    document.programVersion = form.ProgramVersion;
    document.partner = {form.PartnerName, form.PartnerNumber};
    for (int i = 1; i <= form.AMark.UBound(); ++i) document.marks.push_back(form.AMark[i].Visible);
    for (int i = 1; i <= form.AText.UBound(); ++i) {
        std::string text = form.AText[i].Tag;
        AmpRem(text);
        document.texts.push_back({std::move(text), switchesOf(form, i)});
    }
    return document;
}

void trimName(Zevlin& form) { form.CardName = std::string(toolkit::trim(form.CardName)); }

/// False if the card has no name and the player gave none.
bool hasName(Zevlin& form) {
    trimName(form);
    if (!form.CardName.empty()) return true;
    MSaveAs_Click(form);
    trimName(form);
    return !form.CardName.empty();
}

void saveCard(Zevlin& form) {
    commitOpenField(form);
    if (!hasName(form)) return;
    std::string content = writeCard(documentOf(form));
    // Whatever cleans or syncs the folder must not take the player's work along.
    if (form.NameBeforeRebuild) form.CardInMemory = content;
    toolkit::writeFile(cardPath(form), content);
    ResetMod(form);
    form.OrigIndex = 0;
    form.OrigText.clear();
    MakeTimeStamp(form);
    if (!form.Printing && !form.Zooming) SetCaption(form);
}

} // namespace

void MSave_Click(Zevlin& form) {
    Traceit(form, "MSave_Click");
    if (trapped(form, "Error in MSave_Click ", [&] { saveCard(form); })) return;
    if (!form.Printing) toolkit::endProgram();
    // A job must not cost the card because its temporary file found no room.
    form.CardInMemory = writeCard(documentOf(form));
}

std::filesystem::path cardPath(const Zevlin& form) {
    return toolkit::resolveFile(form.DataFolder, form.CardName + std::string(cardExtension));
}

} // namespace zev
