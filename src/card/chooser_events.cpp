#include "card/chooser_events.h"

#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/key.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

bool hasName(const Zevlin& form) { return !toolkit::trim(form.TSaveAs.Text).empty(); }

} // namespace

void takeSelectedName(Zevlin& form) {
    if (form.FileList.ListIndex < 0) return;
    const auto& name = form.FileList.List.at(static_cast<std::size_t>(form.FileList.ListIndex));
    if (form.TSaveAs.Text == name) return;
    form.TSaveAs.Text = name;
    TSaveAs_Change(form);
}

void selectName(Zevlin& form) {
    form.TSaveAs.SelStart = 0;
    form.TSaveAs.SelLength = static_cast<int>(form.TSaveAs.Text.size());
}

void enableOk(Zevlin& form) { form.BOK.Enabled = hasName(form); }

void BOK_Click(Zevlin& form) {
    procedure(form, "BOK_Click", [&] {
        if (hasName(form)) form.ChooserTaken = true;
        enableOk(form);
    });
}

void BCancel_Click(Zevlin& form) {
    Traceit(form, "BCancel_Click");
    form.ChooserCancelled = true;
}

void TSaveAs_Change(Zevlin& form) {
    Traceit(form, "TsaveAs_Change");
    trapped(form, "Error in TSaveAs_Change: #", [&] { enableOk(form); });
}

void TSaveAs_GotFocus(Zevlin& form) {
    procedure(form, "TSaveAs_GotFocus", [&] { selectName(form); });
}

void TSaveAs_KeyPress(Zevlin& form, int& KeyAscii) {
    procedure(form, "TSaveAs_KeyPress", [&] {
        if (KeyAscii == toolkit::key::enter) {
            KeyAscii = 0;
            // The key that opened the chooser may still be down.
            if (hasName(form) && !toolkit::isKeyRepeat()) BOK_Click(form);
        } else if (KeyAscii == toolkit::key::escape) {
            KeyAscii = 0;
            BCancel_Click(form);
        }
        enableOk(form);
    });
}

void LSaveAs_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse) {
    procedure(form, "LSaveAs_MouseDown", toolkit::numberText(mouse.Button),
              [&] { form.SetFocus(form.TSaveAs); });
}

void FileList_Click(Zevlin& form) {
    procedure(form, "FileList_Click", [&] { takeSelectedName(form); });
}

void FileList_DblClick(Zevlin& form) {
    procedure(form, "FileList_DblClick", [&] {
        takeSelectedName(form);
        BOK_Click(form);
    });
}

void FileList_KeyPress(Zevlin& form, int& KeyAscii) {
    procedure(form, "FileList_KeyPress", [&] {
        if (KeyAscii != toolkit::key::escape) return;
        KeyAscii = 0;
        BCancel_Click(form);
    });
}

} // namespace zev
