// The Design menu's share of the form's state.
#pragma once

#include <array>
#include <cstdint>

#include "toolkit/model/control.h"

namespace zev {

/// A mark or a text field: both are labels that can be moved about.
enum class FieldKind { Mark = 1, Text = 2 };

struct DesignField {
    FieldKind kind = FieldKind::Mark;
    int index = 0;
    bool operator==(const DesignField&) const = default;
};

struct DesignState {
    bool DesignDirty = false;            ///< the layout in memory has changed
    std::int16_t SchemeBeforeDesign = 0; ///< to return to: design mode shows the layout's colours

    bool FieldHeld = false; ///< the last press took hold of a field: a move may drag it
    float DragLeft = 0;     ///< twips; the dragged field's place after the last step
    float DragTop = 0;
    float TextDragX = 0; ///< twips in the text field; the pointer's last place over it
    float TextDragY = 0;

    /// The field added last, while an undo can still remove it; index 0 for none. No other field
    /// can be removed: card files know those of the layout by their numbers.
    DesignField FieldAdded;
    bool FieldAddedHeld = false; ///< the press that added it isn't over: a move shapes it

    bool UndoValid = false; ///< an undo puts the pressed field back; else it removes the added one
    std::int16_t UndoIndex = 0; ///< the field concerned; below 1 nothing can be undone
    bool UndoIsText = false;
    float UndoLeft = 0; ///< twips; the field as it was at the press
    float UndoTop = 0;
    float UndoWidth = 0;
    float UndoHeight = 0;

    std::int16_t PopupIndex = 0; ///< the field whose colour menu is open
    std::int16_t PopupKind = 0;  ///< 1 a mark, 2 a text field
    std::array<toolkit::MenuItem, 4> mpopDesignColor{
        toolkit::MenuItem{}, toolkit::MenuItem{.Caption = "Black"},
        toolkit::MenuItem{.Caption = "Red"},
        toolkit::MenuItem{.Caption = "Blue"}}; ///< indexed from 1

    toolkit::MenuItem MShowDesignMenu; ///< checked: the Design menu is shown
    toolkit::MenuItem MShapes;         ///< the Design menu
    toolkit::MenuItem MShowShapes;     ///< checked: design mode
    toolkit::MenuItem MSmall;
    toolkit::MenuItem MMedium;
    toolkit::MenuItem MLarge;
    toolkit::MenuItem MBlack;
    toolkit::MenuItem MRed;
    toolkit::MenuItem MBlue;
    toolkit::MenuItem MCheck;
    toolkit::MenuItem MCircle;
    toolkit::MenuItem MText;
    toolkit::MenuItem MSetTabs; ///< checked: a TAB sequence is being recorded
    toolkit::MenuItem MAutoAdjust;
    toolkit::MenuItem MSaveShapes;
    /// A read-out on the menu bar: the field pressed last.
    toolkit::MenuItem MCoord{.Caption = "Coordinates", .Visible = false};
};

} // namespace zev
