#include "app/wiring.h"

#include <vector>

#include "app/initialize.h"
#include "app/menu_table.h"
#include "app/unload.h"
#include "app/wire_panels.h"
#include "card/journal.h"
#include "card/take_card.h"
#include "card/undo_card.h"
#include "design/design_mode.h"
#include "design/drag_field.h"
#include "design/undo.h"
#include "events/accessible_fields.h"
#include "events/card_mouse.h"
#include "events/edit_field.h"
#include "events/edit_keys.h"
#include "events/keys.h"
#include "events/mark_clicks.h"
#include "events/tab_walk.h"
#include "form/file_note.h"
#include "form/panel_look.h"
#include "form/panels.h"
#include "form/run_procedure.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "help/help_page.h"
#include "marks/follow_caret.h"
#include "marks/move_card.h"
#include "text/edit_box.h"
#include "view/image_size.h"

namespace zev {
namespace {

void wireForm(Zevlin& form) {
    form.KeyDown = run(form, Form_KeyDown);
    form.QueryClose = [&form] { return Form_Unload(form, unloadByPlayer); };
    form.QueryEnd = [&form] { return Form_Unload(form, unloadBySession); };
    form.TakesFile = [&form] { return takesDroppedCard(form); };
    form.FileDropped = [&form](const std::filesystem::path& file) { openDroppedCard(form, file); };
    form.Resize = run(form, Form_Resize);
    form.Settled = [&form] {
        noteCardStep(form);
        followCaret(form);
        showWayHome(form);
    };
    form.Ending = [&form] { flushJournal(form); };
    form.Unhandled = [&form](const toolkit::RunTimeError& failure) {
        traceFailure(form, "Error in an event: #", failure);
    };
}

/// Gives each slot the procedure that floors below call.
void wireSlots(Zevlin& form) {
    form.Slots.initialize = [&form] { Initialize(form); };
    form.Slots.toggleDesignMode = [&form] { MShowShapes_Click(form); };
    form.Slots.restorePicture = [&form] { restorePictureOfFields(form); };
    form.Slots.ringJournal = [&form] { ringJournal(form); };
}

void wireCard(Zevlin& form) {
    form.P1.MouseDown = run(form, P1_MouseDown);
    form.P1.MouseMove = run(form, P1_MouseMove);
    form.P1.MouseUp = run(form, P1_MouseUp);
    form.P1.Click = run(form, P1_Click);
    form.P1.KeyDown = run(form, P1_KeyDown);
    form.P1.KeyPress = run(form, P1_KeyPress);
}

void wireBoxes(Zevlin& form) {
    form.CText.Alignment = toolkit::Alignment::Center;
    form.CText.GotFocus = run(form, CText_GotFocus);
    form.CText.LostFocus = run(form, CText_LostFocus);
    form.CText.KeyDown = run(form, CText_KeyDown);
    form.CText.Change = run(form, noteChange);
    form.CText.KeyPress = run(form, CText_KeyPress);
    form.CText.KeyUp = run(form, CText_KeyUp);
    form.CText.MouseDown = run(form, CText_MouseDown);
    form.LText.Alignment = toolkit::Alignment::Left;
    form.LText.GotFocus = run(form, LText_GotFocus);
    form.LText.LostFocus = run(form, LText_LostFocus);
    form.LText.KeyDown = run(form, Ltext_KeyDown);
    form.LText.Change = run(form, noteChange);
    form.LText.KeyPress = run(form, Ltext_KeyPress);
    form.LText.KeyUp = run(form, Ltext_KeyUp);
    form.LText.MouseDown = run(form, Ltext_MouseDown);
}

void wireHelp(Zevlin& form) {
    form.THelp.AccessibleName = "Help page";
    form.THelp.KeyPress = run(form, THelp_KeyPress);
    form.THelp.MouseDown = run(form, THelp_MouseDown);
    form.THelp.Click = run(form, THelp_Click);
    // Arrows and the search by letters must not open the browser.
    form.THelp.ClicksByKey = false;
    form.THelp.IsLink = [&form](int line) { return isHelpLink(form, line); };
    form.THelp.ScrollsAcross = true;
    form.PopHelp.BackColor = toolkit::rgb(255, 255, 225);
    form.PopHelp.MultiLine = true;
    form.PopHelp.Margin = 5;
    form.PleaseWait.IsNotice = true;
}

/// A slot that runs the mouse procedure of a label.
auto runMouse(Zevlin& form, void (*procedure)(Zevlin&, int, toolkit::MouseArguments&)) {
    return [&form, procedure](int index, toolkit::MouseArguments& mouse) {
        procedure(form, index, mouse);
    };
}

/// The groups of labels, from the back of the card to its front.
std::vector<toolkit::LabelGroup> cardGroups(Zevlin& form) {
    return {{.labels = &form.Highlight},
            {.labels = &form.AText,
             .MouseDown = runMouse(form, AText_MouseDown),
             .MouseMove = runMouse(form, AText_MouseMove),
             .MouseUp = runMouse(form, AText_MouseUp),
             .Click = run(form, AText_Click)},
            {.labels = &form.AMark,
             .TakesFocus = true,
             .MouseDown = runMouse(form, AMark_MouseDown),
             .MouseMove = runMouse(form, AMark_MouseMove),
             .MouseUp = runMouse(form, AMark_MouseUp),
             .Click = run(form, AMark_Click)},
            {.labels = &form.SText,
             .MouseDown = runMouse(form, SText_MouseDown),
             .MouseMove = runMouse(form, SText_MouseMove),
             .MouseUp = runMouse(form, SText_MouseUp),
             .Click = run(form, SText_Click)}};
}

void wireFileNote(Zevlin& form) {
    form.FileNote.Link = "Show in folder";
    form.FileNote.ForeColor = linkBlue;
    form.FileNote.BackColor = paleYellow;
    form.FileNote.Click = run(form, FileNote_Click);
}

/// A slot that runs a command. The help would lie over what the command shows.
auto runCommand(Zevlin& form, void (*procedure)(Zevlin&)) {
    return [&form, procedure] {
        if (form.THelp.Visible) hideHelp(form);
        hideFileNote(form);
        procedure(form);
    };
}

std::vector<toolkit::MenuRow> menuRows(Zevlin& form) {
    std::vector<toolkit::MenuRow> rows;
    for (const MenuEntry& entry : menuTable()) {
        toolkit::MenuRow row;
        row.level = entry.level;
        row.shortcut = entry.shortcut;
        if (toolkit::MenuItem* item = itemOf(form, entry)) {
            row.item = item;
            row.item->Caption = entry.caption;
            row.item->Enabled = entry.atStart == AtStart::Enabled;
        }
        if (entry.procedure != nullptr) row.Click = runCommand(form, entry.procedure);
        rows.push_back(row);
    }
    return rows;
}

} // namespace

toolkit::WindowParts wire(Zevlin& form) {
    wireForm(form);
    wireSlots(form);
    wireCard(form);
    wireBoxes(form);
    wireHelp(form);
    wireFileNote(form);
    toolkit::WindowParts parts;
    parts.form = &form;
    parts.card = &form.P1;
    parts.frozenCard = &form.P2;
    parts.cardGroups = cardGroups(form);
    parts.cardLabels = {&form.Timestamp, &form.CreditLabel};
    parts.framedLabel = [&form] { return unseenMark(form); };
    parts.pointerOver = [&form](const auto* group, float X, float Y) {
        return pointerOver(form, group, X, Y);
    };
    parts.cardTextBoxes = {&form.CText, &form.LText};
    parts.lists = {&form.THelp};
    parts.panels = wirePanels(form);
    parts.overlays = {&form.PleaseWait, &form.PopHelp};
    parts.note = &form.FileNote;
    parts.menu = menuRows(form);
    parts.accessible = accessibleCard(form);
    return parts;
}

} // namespace zev
