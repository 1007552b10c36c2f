#include "card/chooser_keys.h"

#include <algorithm>

#include "card/chooser_events.h"
#include "card/chooser_menu.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/key.h"

namespace zev {
namespace {

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

bool hasSelected(const Zevlin& form) { return form.FileList.ListIndex >= 0; }

bool opensMenu(const toolkit::KeyArguments& key) {
    return key.KeyCode == toolkit::key::menu ||
           (key.KeyCode == toolkit::key::f10 && key.Shift == toolkit::shift::shift);
}

bool isAlone(const toolkit::KeyArguments& key, int keyCode) {
    return key.KeyCode == keyCode && key.Shift == 0;
}

/// The keys that the list and the name have in common. True if it was one of them.
bool actOnSelected(Zevlin& form, const toolkit::KeyArguments& key) {
    const bool renames = isAlone(key, toolkit::key::f2);
    if (!renames && !opensMenu(key)) return false;
    if (!hasSelected(form) || toolkit::isKeyRepeat()) return true;
    if (renames) {
        mpopRename_Click(form);
    } else {
        takeSelectedName(form);
        openFileMenu(form, MenuPlace::Row);
    }
    return true;
}

/// In the name the keys are for the card that it names: another one isn't what the player sees
/// there.
bool namesSelected(const Zevlin& form) {
    const auto& list = form.FileList;
    return hasSelected(form) &&
           list.List.at(static_cast<std::size_t>(list.ListIndex)) == form.TSaveAs.Text;
}

/// True if the key was one of the list's.
bool actOnList(Zevlin& form, const toolkit::KeyArguments& key) {
    if (actOnSelected(form, key)) return true;
    const bool deletes = isAlone(key, toolkit::key::deleteKey);
    if (!deletes && key.KeyCode != toolkit::key::enter) return false;
    if (toolkit::isKeyRepeat()) return true;
    if (!deletes) {
        takeSelectedName(form);
        BOK_Click(form);
    } else if (hasSelected(form)) {
        mpopDelete_Click(form);
    }
    return true;
}

} // namespace

void TSaveAs_KeyDown(Zevlin& form, toolkit::KeyArguments& key) {
    trapped(form, "Error in TSaveAs_KeyDown: #", [&] {
        if (namesSelected(form) && actOnSelected(form, key)) {
            key = {};
            return;
        }
        const int rows = key.Shift == 0 ? rowsOf(form, key.KeyCode) : 0;
        if (rows == 0) return;
        key = {};
        if (!form.FileList.List.empty()) walkList(form, rows);
    });
}

void FileList_KeyDown(Zevlin& form, toolkit::KeyArguments& key) {
    procedure(form, "FileList_KeyDown", [&] {
        if (actOnList(form, key)) key = {};
    });
}

} // namespace zev
