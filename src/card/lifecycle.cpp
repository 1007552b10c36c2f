#include "card/lifecycle.h"

#include <algorithm>
#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "card/card_file.h"
#include "card/chooser.h"
#include "card/file_seen.h"
#include "card/load.h"
#include "form/modified.h"
#include "card/names_line.h"
#include "card/save.h"
#include "text/set_sym.h"
#include "toolkit/dialog.h"
#include "toolkit/files.h"
#include "text/edit_box.h"
#include "card/check_mod.h"

namespace zev {
namespace {

/// Neither printing nor a zoom shows its work in the title.
bool showsTitle(const Zevlin& form) { return !form.Printing && !form.Zooming; }

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
}

bool cardExists(const Zevlin& form, const std::string& name) {
    return toolkit::findFile(form.DataFolder, name + std::string(cardExtension)).has_value();
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
    form.CardName = GetFileNames(form);
    if (form.CardName.empty()) return SetCaption(form);
    if (cardExists(form, form.CardName))
        GetCardFile(form);
    else
        rememberNoFile(form);
    if (showsTitle(form)) SetCaption(form);
    form.P1.Move(0, 0);
}

toolkit::Answer askAboutPartner(const Zevlin& form) {
    if (form.PartnerName.empty() && form.PartnerNumber.empty()) return toolkit::Answer::Yes;
    return toolkit::show(
        {.text = "Do you want to keep the same Partner's information in the new card?",
         .buttons = toolkit::Buttons::YesNoCancel,
         .icon = toolkit::Icon::Question,
         .title = {},
         .preset = toolkit::Answer::No});
}

std::string chosenNameToSave(Zevlin& form) {
    const std::string title = form.Caption;
    const bool shown = showsTitle(form);
    if (shown) form.Caption = title + " - Save this card";
    const std::string cardName = form.CardName;
    std::string name = GetFileNames(form);
    if (!shown) return name;
    // The chooser may have deleted or renamed the card.
    if (form.CardName != cardName) {
        SetCaption(form);
    } else {
        form.Caption = title;
    }
    return name;
}

/// A selected card, the name as typed among the listed ones, or any file that the save would
/// replace.
bool isTaken(const Zevlin& form, const std::string& name) {
    const auto& names = form.FileList.List;
    return form.FileList.ListIndex >= 0 ||
           std::ranges::find(names, form.TSaveAs.Text) != names.end() || cardExists(form, name);
}

bool mayReplace() {
    return toolkit::show({.text = "File already exists. Do you want to replace it?",
                          .buttons = toolkit::Buttons::YesNo,
                          .icon = toolkit::Icon::Question,
                          .title = "Overwrite existing file?",
                          .preset = {}}) == toolkit::Answer::Yes;
}

void saveUnderNewName(Zevlin& form) {
    const auto keepPartner = askAboutPartner(form);
    if (keepPartner == toolkit::Answer::Cancel) return;
    const std::string name = chosenNameToSave(form);
    if (name.empty()) return;
    if (isTaken(form, name) && !mayReplace()) return;
    form.CardName = name;
    // Whether a file of this name may go was asked just now.
    form.CardFileSeen.reset();
    if (keepPartner == toolkit::Answer::No) {
        form.PartnerName.clear();
        form.PartnerNumber.clear();
    }
    MSave_Click(form);
    if (showsTitle(form)) SetCaption(form);
}

} // namespace

void MNew_Click(Zevlin& form) {
    Traceit(form, "MNew_Click");
    trapped(form, "Error in MNew_Click: #", [&] { makeNewCard(form); });
}

void MOpen_Click(Zevlin& form) {
    Traceit(form, "MOpen_Click");
    trapped(form, "Error in MOpen_Click: #", [&] { openCard(form); });
}

void MOpenLast_Click(Zevlin& form) {
    Traceit(form, "MOpenLast_Click");
    trapped(form, "Error in MOpenLast_Click: #", [&] { MOpen_Click(form); });
}

void MSaveAs_Click(Zevlin& form) {
    Traceit(form, "MSaveAs_Click");
    trapped(form, "Error in MSaveAs_Click: #", [&] { saveUnderNewName(form); });
}

} // namespace zev
