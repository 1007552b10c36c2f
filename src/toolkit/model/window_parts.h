// What a window shows: the form, its controls and its menus.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "toolkit/model/accessible_card.h"
#include "toolkit/model/control.h"
#include "toolkit/model/form.h"
#include "toolkit/model/label.h"
#include "toolkit/model/label_group.h"
#include "toolkit/model/panel.h"

namespace toolkit {

/// One row of the menu bar's table. A row on the bar with neither rows below it nor a Click is a
/// text at the bar's end that is only read.
struct MenuRow {
    int level = 0;               ///< 0 on the bar, 1 in its menu, 2 in a submenu
    MenuItem* item = nullptr;    ///< none: a separator
    std::string_view shortcut{}; ///< acts while the item is shown and enabled: "Ctrl+S"
    std::function<void()> Click{};
};

/// Everything that the window shows. The values must outlive the window.
struct WindowParts {
    Form* form = nullptr;
    PictureBox* card = nullptr;
    /// While it is visible the card's widget goes on showing what it showed when this one came up,
    /// whatever becomes of the card's values. May be missing.
    PictureBox* frozenCard = nullptr;
    std::vector<LabelGroup> cardGroups{};
    std::vector<Label*> cardLabels{}; ///< single labels on the card; they swallow presses
    /// The label of the card that has a frame around it, if any: on the screen and nowhere else.
    std::function<const Label*()> framedLabel{};
    /// What the pointer looks like over a label of the group, or over bare card (nullptr) at a
    /// place on it in twips, while neither card nor form has a pointer set. May be missing.
    std::function<MousePointer(const ControlArray<Label>* group, float X, float Y)> pointerOver{};
    std::vector<TextBox*> cardTextBoxes{}; ///< over the labels of the card
    std::vector<ListBox*> lists{};         ///< on the form, over the card
    std::vector<PanelContents> panels{};   ///< the same
    std::vector<TextBox*> overlays{};      ///< on the form, over all else; only to be read
    Note* note = nullptr;                  ///< the same; may be missing
    std::vector<MenuRow> menu{};
    AccessibleCard accessible{};
};

} // namespace toolkit
