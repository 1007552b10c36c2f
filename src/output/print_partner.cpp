#include "output/print_partner.h"

#include <string>

#include "card/journal.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "output/partner_line.h"
#include "output/print_card.h"
#include "text/edit_box.h"
#include "text/escapes.h"
#include "text/fit_text.h"
#include "text/set_sym.h"

namespace zev {
namespace {

/// Shows a raw text as the names line, fitted and with its symbols.
void setNamesLine(Zevlin& form, const std::string& text) {
    form.AText[form.NamesField].Caption = text;
    FitText(form, form.CText, form.NamesField);
    SetSym(form, form.NamesField);
}

std::string lineForPartner(const Zevlin& form, const std::string& ownLine) {
    std::string text = partnerCaption({.partnerName = form.PartnerName,
                                       .partnerNumber = form.PartnerNumber,
                                       .myName = form.MyName,
                                       .cardName = form.CardName,
                                       .caption = ownLine});
    AmpAdd(text);
    return text;
}

} // namespace

void showPartnerLine(Zevlin& form) {
    if (form.NamesField == 0) return;
    const std::string own = form.AText[form.NamesField].Tag;
    setNamesLine(form, lineForPartner(form, own));
}

namespace {

void printAsPartner(Zevlin& form) {
    form.PrintsPartner = true;
    trapped(form, "Error in MPrintPartner_Click: #", [&] { MPrint_Click(form); });
    form.PrintsPartner = false;
}

void printPartner(Zevlin& form) {
    // An open edit of the names line is part of the card, and its box would cover what is printed.
    commitOpenField(form);
    if (form.NamesField == 0) return printAsPartner(form);
    // The journal must not keep the partner's line as the card's.
    flushJournal(form);
    form.Journal.isHeld = true;
    const toolkit::Label kept = form.AText[form.NamesField];
    showPartnerLine(form);
    printAsPartner(form);
    setNamesLine(form, kept.Tag);
    form.AText[form.NamesField].Caption = kept.Caption;
    form.AText[form.NamesField].Tag = kept.Tag;
    form.Journal.isHeld = false;
}

} // namespace

void MPrintPartner_Click(Zevlin& form) {
    if (form.Printing) return;
    procedure(form, "MPrintPartner_Click", [&] { printPartner(form); });
}

void MPrintBoth_Click(Zevlin& form) {
    if (form.Printing) return;
    procedure(form, "MPrintBoth_Click", [&] {
        MPrint_Click(form);
        MPrintPartner_Click(form);
    });
}

} // namespace zev
