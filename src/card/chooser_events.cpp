#include "card/chooser_events.h"

#include <algorithm>
#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/key.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

bool hasName(const Zevlin& form) { return !toolkit::trim(form.TSaveAs.Text).empty(); }

void selectName(Zevlin& form) {
    form.TSaveAs.SelStart = 0;
    form.TSaveAs.SelLength = static_cast<int>(form.TSaveAs.Text.size());
}

/// How many rows the key moves the selection.
int rowsOf(const Zevlin& form, int keyCode) {
    const float lineHeight = toolkit::textHeight(form.FileList.Font);
    const int page = std::max(1, static_cast<int>(form.FileList.Height / lineHeight) - 1);
    switch (keyCode) {
    case toolkit::key::up:
        return -1;
    case toolkit::key::down:
        return 1;
    case toolkit::key::pageUp:
        return -page;
    case toolkit::key::pageDown:
        return page;
    default:
        return 0;
    }
}

void walkList(Zevlin& form, int rows) {
    const int last = static_cast<int>(form.FileList.List.size()) - 1;
    const int from = form.FileList.ListIndex;
    // The first key selects the first card, or the last.
    const int start = from >= 0 ? from + rows : (rows > 0 ? 0 : last);
    form.FileList.ListIndex = std::clamp(start, 0, last);
    FileList_Click(form);
    selectName(form);
}

} // namespace

void takeSelectedName(Zevlin& form) {
    if (form.FileList.ListIndex < 0) return;
    const auto& name = form.FileList.List.at(static_cast<std::size_t>(form.FileList.ListIndex));
    if (form.TSaveAs.Text == name) return;
    form.TSaveAs.Text = name;
    TSaveAs_Change(form);
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

void TSaveAs_KeyDown(Zevlin& form, toolkit::KeyArguments& key) {
    trapped(form, "Error in TSaveAs_KeyDown: #", [&] {
        const int rows = key.Shift == 0 ? rowsOf(form, key.KeyCode) : 0;
        if (rows == 0) return;
        key = {};
        if (!form.FileList.List.empty()) walkList(form, rows);
    });
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

void FileList_KeyDown(Zevlin& form, toolkit::KeyArguments& key) {
    procedure(form, "FileList_KeyDown", [&] {
        if (key.KeyCode != toolkit::key::enter) return;
        key = {};
        if (toolkit::isKeyRepeat()) return;
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
