#include "card/undo_card.h"

#include <string>
#include <string_view>
#include <utility>

#include "card/document.h"
#include "card/history.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "layout/field_names.h"
#include "text/edit_box.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

/// Design mode shows all marks, set or not.
bool isCardInUse(const Zevlin& form) { return isCardAway(form) || form.MShowShapes.Checked; }

/// What the player did, as the menu tells it behind "Undo".
std::string describe(const CardStep& step) {
    const int fields = static_cast<int>(step.marks.size() + step.texts.size());
    if (fields > 1) return "changes in " + toolkit::numberText(fields) + " fields";
    if (!step.marks.empty()) {
        const CardStep::Mark& mark = step.marks.front();
        return (mark.isSet ? "setting " : "clearing ") + nameOfMark(mark.number);
    }
    if (step.texts.empty()) return "change of partner's name";
    const CardStep::Text& text = step.texts.front();
    const bool isTyped = text.before.text != text.after.text;
    return (isTyped ? "typing in " : "style of ") + nameOfText(text.number);
}

std::string caption(const std::string& verb, const CardStep* step) {
    return step == nullptr ? verb : verb + " " + describe(*step);
}

void nameSteps(Zevlin& form) {
    form.MUndo.Caption = caption("&Undo", form.History.toUndo());
    form.MRedo.Caption = caption("&Redo", form.History.toRedo());
}

/// An open text has an undo of its own.
void offerSteps(Zevlin& form) {
    const bool isOffered = !isEditing(form) && !isCardInUse(form);
    form.MUndo.Enabled = isOffered && form.History.toUndo() != nullptr;
    form.MRedo.Enabled = isOffered && form.History.toRedo() != nullptr;
}

int openText(const Zevlin& form) { return isEditing(form) ? form.TIndex : 0; }

/// The text that is open is as it was until it is left.
CardDocument cardWithoutOpenText(const Zevlin& form) {
    CardDocument card = documentOf(form);
    const auto& texts = form.History.card().texts;
    const auto place = static_cast<std::size_t>(openText(form)) - 1;
    if (place < texts.size() && place < card.texts.size()) card.texts[place] = texts[place];
    return card;
}

void showStep(Zevlin& form, const CardStep& step) {
    for (const CardStep::Mark& mark : step.marks) {
        if (form.AMark.exists(mark.number)) form.AMark[mark.number].Visible = mark.isSet;
    }
    for (const CardStep::Text& text : step.texts) {
        const auto place = static_cast<std::size_t>(text.number) - 1;
        const auto& texts = form.History.card().texts;
        if (form.AText.exists(text.number) && place < texts.size())
            showField(form, text.number, texts[place]);
    }
    if (!step.partner) return;
    form.PartnerName = step.partner->after.name;
    form.PartnerNumber = step.partner->after.number;
}

void go(Zevlin& form, CardStep (CardHistory::*move)()) {
    showStep(form, (form.History.*move)());
    adoptDressedCard(form);
    nameSteps(form);
    if (form.History.isSaved())
        ResetMod(form);
    else
        SetMod(form);
}

} // namespace

void beginHistory(Zevlin& form, bool isSaved) {
    form.History.begin(documentOf(form), isSaved);
    form.StepPending = false;
    nameSteps(form);
}

void noteCardStep(Zevlin& form) {
    if (!isCardInUse(form)) {
        const int open = openText(form);
        const bool isStillOpen = open != 0 && open == form.FieldOfStep;
        form.FieldOfStep = open;
        if (form.StepPending && !isStillOpen) {
            form.History.note(cardWithoutOpenText(form));
            form.StepPending = open != 0;
            nameSteps(form);
        }
    }
    offerSteps(form);
}

void noteSavedCard(Zevlin& form) {
    // A card that is saved under another name may go without its partner.
    form.StepPending = true;
    noteCardStep(form);
    form.History.markSaved();
}

void adoptDressedCard(Zevlin& form) { form.History.adopt(cardWithoutOpenText(form)); }

void MUndo_Click(Zevlin& form) {
    procedure(form, "MUndo_Click", [&] {
        if (form.MUndo.Enabled) go(form, &CardHistory::undo);
    });
}

void MRedo_Click(Zevlin& form) {
    procedure(form, "MRedo_Click", [&] {
        if (form.MRedo.Enabled) go(form, &CardHistory::redo);
    });
}

} // namespace zev
