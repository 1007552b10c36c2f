#include "events/text_menu.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "events/edit_keys.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "text/styles.h"
#include "toolkit/clipboard.h"
#include "toolkit/dialog.h"

namespace zev {
namespace {

/// A menu command and its key are one path.
void pressKey(Zevlin& form, std::string_view name, int key) {
    Traceit(form, name);
    trapped(form, "Error in " + std::string(name) + ": #", [&] {
        if (!isEditing(form)) return;
        int KeyAscii = key;
        xText_KeyPress(form, openBox(form), KeyAscii);
    });
}

} // namespace

void mpopUndo_Click(Zevlin& form) { pressKey(form, "mpopUndo_Click", control_key::z); }
void mpopBold_Click(Zevlin& form) { pressKey(form, "mpopBold_Click", control_key::b); }
void mpopItalic_Click(Zevlin& form) { pressKey(form, "mpopItalic_Click", control_key::i); }
void mpopLeft_Click(Zevlin& form) { pressKey(form, "mpopLeft_Click", control_key::l); }

void openTextMenu(Zevlin& form) {
    const auto row = [&form](toolkit::MenuItem& item, std::string shortcut,
                             void (*procedure)(Zevlin&)) {
        return toolkit::PopupRow{.item = &item,
                                 .shortcut = std::move(shortcut),
                                 .Click = [&form, procedure] { procedure(form); }};
    };
    toolkit::MenuItem pasteItem = form.mpopPaste;
    pasteItem.Enabled = takesCopy(form) || toolkit::hasClipboardText();
    const std::vector<toolkit::PopupRow> rows{
        row(form.mpopUndo, "Ctrl+Z", mpopUndo_Click),
        {},
        row(form.mpopBold, "Ctrl+B", mpopBold_Click),
        row(form.mpopItalic, "Ctrl+I", mpopItalic_Click),
        row(form.mpopLeft, "Ctrl+L", mpopLeft_Click),
        row(form.mpopHilite, "Ctrl+G", mpopHilite_Click),
        {},
        row(form.mpopCopy, "Ctrl+C", mpopCopy_Click),
        row(pasteItem, "Ctrl+V", mpopPaste_Click),
    };
    toolkit::popupMenu(rows);
}

} // namespace zev
