#include "card/lifecycle.h"

#include <algorithm>
#include <string>

#include "card/card_file.h"
#include "card/check_mod.h"
#include "card/chooser.h"
#include "card/file_seen.h"
#include "card/load.h"
#include "card/names_line.h"
#include "card/save.h"
#include "card/undo_card.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "text/set_sym.h"

namespace zev {
namespace {

void clearTexts(Zevlin& form) {
    for (int i = 1; i <= form.AText.UBound(); ++i) {
        toolkit::Label& text = form.AText[i];
        text.Caption.clear();
        text.Tag.clear();
        text.Font.Bold = form.mBold.Checked;
        text.Font.Italic = false;
        text.Alignment = toolkit::Alignment::Center;
        form.Highlight[i].Visible = false;
    }
}

void clearFields(Zevlin& form) {
    for (int i = 1; i <= form.AMark.UBound(); ++i) form.AMark[i].Visible = false;
    clearTexts(form);
    unloadSymbols(form);
}

void makeNewCard(Zevlin& form) {
    if (CheckMod(form) || form.Printing) return;
    // The indexes go first: hiding the boxes must commit nothing into the new card.
    form.OrigIndex = 0;
    form.TIndex = 0;
    form.TabActive = false;
    if (!form.Carried) form.TabLast = 0;
    hideTextBox(form, form.LText);
    hideTextBox(form, form.CText);
    form.Slots.restorePicture();
    form.P1.Move(0, 0);
    clearFields(form);
    form.CardName.clear();
    form.PartnerName.clear();
    form.PartnerNumber.clear();
    if (!form.Carried) form.CardFileSeen.reset();
    ShowNames(form, NamesUpdate::FillEmpty);
    ResetMod(form);
    if (showsTitle(form)) SetCaption(form);
    if (!form.Carried) beginHistory(form, true);
}

void announceOpening(Zevlin& form) {
    if (!showsTitle(form)) return;
    const auto bracket = form.Caption.find('(');
    if (bracket != std::string::npos) form.Caption.erase(bracket == 0 ? 0 : bracket - 1);
    form.Caption += " - Open an existing card file";
}

void openCard(Zevlin& form) {
    if (CheckMod(form) || form.Printing) return;
    // The card is blank but keeps its name while the chooser is open.
    const std::string name = form.CardName;
    MNew_Click(form);
    form.CardName = name;
    announceOpening(form);
    form.ChooserOpens = true;
    form.CardName = GetFileNames(form);
    form.ChooserOpens = false;
    if (form.CardName.empty()) return SetCaption(form);
    if (findCard(form, form.CardName))
        GetCardFile(form);
    else
        rememberNoFile(form);
    if (showsTitle(form)) SetCaption(form);
    form.P1.Move(0, 0);
}

} // namespace

void MNew_Click(Zevlin& form) {
    procedure(form, "MNew_Click", [&] { makeNewCard(form); });
}

void MOpen_Click(Zevlin& form) {
    procedure(form, "MOpen_Click", [&] { openCard(form); });
}

void MOpenLast_Click(Zevlin& form) {
    procedure(form, "MOpenLast_Click", [&] { MOpen_Click(form); });
}

} // namespace zev
