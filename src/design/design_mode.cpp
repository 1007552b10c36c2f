#include "design/design_mode.h"

#include <array>
#include <string>

#include "card/lifecycle.h"
#include "card/save.h"
#include "design/add_field.h"
#include "design/design_field.h"
#include "form/field_values.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "layout/text_fields.h"
#include "text/set_sym.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/program.h"
#include "view/colors.h"

namespace zev {
namespace {

using Item = toolkit::MenuItem Zevlin::*;

/// Commands on a card. In design mode there is none.
constexpr std::array<Item, 9> cardItems{
    &Zevlin::MNew,          &Zevlin::MOpen,      &Zevlin::MSave,
    &Zevlin::MSaveAs,       &Zevlin::MPartnerID, &Zevlin::MMyID,
    &Zevlin::MPrintPartner, &Zevlin::MPrintBoth, &Zevlin::MFirstField};

/// Commands on the layout.
constexpr std::array<Item, 3> designItems{&Zevlin::MAutoAdjust, &Zevlin::MSetTabs,
                                          &Zevlin::MSaveShapes};

template <std::size_t Count>
void enable(Zevlin& form, const std::array<Item, Count>& items, bool enabled) {
    for (const Item item : items) (form.*item).Enabled = enabled;
}

/// Remembers where the card lies, since MNew_Click moves it to the corner.
class KeptPlace {
  public:
    explicit KeptPlace(Zevlin& form) : form_(form), left_(form.P1.Left), top_(form.P1.Top) {}
    void putBack() const { form_.P1.Move(left_, top_); }

  private:
    Zevlin& form_;
    float left_;
    float top_;
};

void checkScheme(Zevlin& form, int index) {
    for (auto& scheme : form.mcolorscheme) scheme.Checked = false;
    form.mcolorscheme.at(static_cast<std::size_t>(index)).Checked = true;
    SetGlobalColors(form);
}

/// Offers to save a changed card, and gives it up. False if the player would rather keep it as it
/// is.
bool letsGoOfCard(Zevlin& form) {
    // A print job also gets here, with its own copy of the card, and must not ask.
    if (!form.CardModified || form.Printing) return true;
    const auto answer = toolkit::show({.text = "Do you want to save your card first?",
                                       .buttons = toolkit::Buttons::YesNoCancel,
                                       .icon = toolkit::Icon::Question,
                                       .title = {},
                                       .preset = {}});
    if (answer == toolkit::Answer::Cancel) return false;
    if (answer == toolkit::Answer::Yes) {
        MSave_Click(form);
        // Still changed if the player cancelled the question for a name.
        return !form.CardModified;
    }
    ResetMod(form);
    form.DesignDirty = false;
    form.OrigIndex = 0;
    MNew_Click(form);
    return true;
}

void showAllFields(Zevlin& form) {
    forEachField(form.AMark, [&](int i) { form.AMark[i].Visible = true; });
    // The symbols belong to texts that aren't shown any more.
    unloadSymbols(form);
    forEachField(form.AText, [&](int i) {
        form.AText[i].Caption = "[ " + toolkit::numberText(i) + " " + widthPattern("] ");
        form.AText[i].FirstLineOnly = true;
    });
}

void hideAllFields(Zevlin& form) {
    forEachField(form.AMark, [&](int i) { form.AMark[i].Visible = false; });
    forEachField(form.AText, [&](int i) {
        form.AText[i].Caption.clear();
        form.AText[i].FirstLineOnly = false;
        placeHighlight(form, i);
    });
}

void switchMode(Zevlin& form, bool designing) {
    form.MShowShapes.Checked = designing;
    enable(form, designItems, designing);
    enable(form, cardItems, !designing);
    // The scheme of before comes back afterwards: one chosen meanwhile would be lost.
    for (auto& scheme : form.mcolorscheme) scheme.Enabled = !designing;
    form.TabRecordPrev = 0;
    // SPACE would hide a mark until the mode ends.
    form.TabActive = false;
    form.FieldHeld = false;
    // Only what is done from now on can be undone.
    form.UndoIndex = 0;
    keepAddedField(form);
    form.MCoord.Visible = designing;
    form.MCoord.Caption.clear();
}

/// Does nothing where the card has the focus: no field is open then, and a return to design mode
/// after a rebuild must not show the blank card in between.
void commitEdit(Zevlin& form) {
    if (form.ActiveControl == &form.P1) return;
    form.SetFocus(form.P1);
    toolkit::doEvents();
}

void enterDesign(Zevlin& form) {
    const KeptPlace place(form);
    commitEdit(form);
    if (!letsGoOfCard(form)) return;
    form.SchemeBeforeDesign = static_cast<std::int16_t>(ColorSchemeIndex(form));
    checkScheme(form, 0);
    MNew_Click(form);
    switchMode(form, true);
    showAllFields(form);
    place.putBack();
}

/// The design stays in the controls until they are built anew.
void leaveDesign(Zevlin& form) {
    const KeptPlace place(form);
    switchMode(form, false);
    form.MSetTabs.Checked = false;
    if (!form.Printing) form.MousePointer = toolkit::MousePointer::Default;
    hideAllFields(form);
    form.OrigIndex = 0;
    ResetMod(form);
    MNew_Click(form);
    checkScheme(form, form.SchemeBeforeDesign);
    place.putBack();
}

void showDesignMenu(Zevlin& form) {
    if (form.MShowShapes.Checked) MShowShapes_Click(form);
    form.MShowDesignMenu.Checked = !form.MShowDesignMenu.Checked;
    form.MShapes.Visible = form.MShowDesignMenu.Checked;
    if (form.MShowDesignMenu.Checked) MShowShapes_Click(form);
}

} // namespace

void MShowDesignMenu_Click(Zevlin& form) {
    procedure(form, "MShowDesignMenu_Click", [&] { showDesignMenu(form); });
}

void MShowShapes_Click(Zevlin& form) {
    procedure(form, "MShowShapes_Click", [&] {
        if (form.MShowShapes.Checked) {
            leaveDesign(form);
        } else {
            enterDesign(form);
        }
    });
}

} // namespace zev
