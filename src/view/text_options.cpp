#include "view/text_options.h"

#include <array>
#include <string>

#include "card/undo_card.h"
#include "form/modified.h"
#include "form/options.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "layout/check_point.h"
#include "layout/field.h"
#include "text/set_sym.h"
#include "view/rebuild.h"

namespace zev {
namespace {

using Item = toolkit::MenuItem Zevlin::*;

constexpr std::array<Item, 3> specialSizes{&Zevlin::mSmallerTextFont, &Zevlin::mLargerTextFont,
                                           &Zevlin::mBigTextFont};

void traceState(Zevlin& form, const char* name) {
    Traceit(form, std::string(truthText(form.MShowShapes.Checked)) + " " + name + " ");
}

/// Clicking a checked size goes back to Normal; Normal itself doesn't toggle.
void checkSize(Zevlin& form, Item chosen) {
    const bool normal = chosen == &Zevlin::mNormalTextFont || (form.*chosen).Checked;
    for (const Item size : specialSizes) (form.*size).Checked = !normal && size == chosen;
    form.mNormalTextFont.Checked = normal;
}

/// A rebuild works out the sizes with everything that depends on them. The changed flag stays.
void rebuildKeepingChanges(Zevlin& form) {
    const bool changed = form.CardModified;
    form.P1.Visible = false;
    RebuildScreenImage(form);
    form.P1.Visible = true;
    if (changed) SetMod(form);
}

void chooseSize(Zevlin& form, const char* name, Item chosen) {
    traceState(form, name);
    if (form.Initializing) return;
    const std::string head = "Error in " + std::string(name) + ": #";
    const bool designing = form.MShowShapes.Checked;
    trapped(form, head, [&] {
        if (designing) {
            // It carries unsaved design through the rebuild.
            CheckPointShapes(form);
            form.Slots.toggleDesignMode();
        }
        checkSize(form, chosen);
        IniWrite(form);
        rebuildKeepingChanges(form);
    });
    if (!designing) return;
    trapped(form, head, [&] {
        if (!form.MShowShapes.Checked) form.Slots.toggleDesignMode();
    });
    RestoreShapes(form);
}

/// Places the symbols again, since they depend on the text's width.
void layOutAnew(Zevlin& form, int index) {
    form.AText[index].Caption = form.AText[index].Tag;
    SetSym(form, index);
}

void toggleBold(Zevlin& form) {
    form.mBold.Checked = !form.mBold.Checked;
    IniWrite(form);
    form.mpopBold.Enabled = !form.mBold.Checked;
    forEachField(form.AText, [&](int i) {
        form.AText[i].Font.Bold = form.mBold.Checked;
        layOutAnew(form, i);
    });
    form.CText.Font.Bold = form.LText.Font.Bold = form.mBold.Checked;
    adoptDressedCard(form);
    noteChange(form);
}

void toggleLeftJustify(Zevlin& form) {
    form.mLeftJustify.Checked = !form.mLeftJustify.Checked;
    const auto alignment =
        form.mLeftJustify.Checked ? toolkit::Alignment::Left : toolkit::Alignment::Center;
    forEachField(form.AText, [&](int i) {
        form.AText[i].Alignment = alignment;
        layOutAnew(form, i);
    });
    adoptDressedCard(form);
    noteChange(form);
}

} // namespace

void mSmallerTextFont_Click(Zevlin& form) {
    chooseSize(form, "MSmallerTextFont_Click", &Zevlin::mSmallerTextFont);
}
void mNormalTextFont_Click(Zevlin& form) {
    chooseSize(form, "mNormalTextFont_Click", &Zevlin::mNormalTextFont);
}
void mLargerTextFont_Click(Zevlin& form) {
    chooseSize(form, "mLargerTextFont_Click", &Zevlin::mLargerTextFont);
}
void mBigTextFont_Click(Zevlin& form) {
    chooseSize(form, "mBigTextFont_Click", &Zevlin::mBigTextFont);
}

void mBold_Click(Zevlin& form) {
    traceState(form, "mBold_Click");
    trapped(form, "Error in mBold_Click: #", [&] {
        if (!form.Initializing) toggleBold(form);
    });
}

void mLeftJustify_Click(Zevlin& form) {
    traceState(form, "mLeftJustify_Click");
    trapped(form, "Error in mLeftJustify_Click: #", [&] {
        if (!form.Initializing) toggleLeftJustify(form);
    });
}

void mFillIn_Click(Zevlin& form) {
    trapped(form, "Error in mFillIn_Click: #", [&] {
        if (form.Initializing) return;
        form.mFillIn.Checked = !form.mFillIn.Checked;
        IniWrite(form);
        RebuildScreenImage(form);
    });
}

} // namespace zev
