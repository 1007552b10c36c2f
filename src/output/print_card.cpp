#include "output/print_card.h"

#include <chrono>
#include <utility>

#include "card/journal.h"
#include "form/file_failures.h"
#include "form/file_note.h"
#include "form/options.h"
#include "form/panels.h"
#include "form/printer_facts.h"
#include "form/time_stamp.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/check_point.h"
#include "layout/field.h"
#include "layout/position.h"
#include "output/blank_page.h"
#include "output/gray.h"
#include "output/make_gray.h"
#include "output/print_picture.h"
#include "output/printed_size.h"
#include "text/edit_box.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/flattened_card.h"
#include "toolkit/window/program.h"
#include "view/image_size.h"
#include "view/rebuild.h"

namespace zev {
namespace {

constexpr std::string_view trapHead = "Error in mPrint: ";

/// What a job changes of the view, to be put back afterwards.
struct View {
    float fitScale = 0;
    std::int16_t zoomLevel = 0;
    bool fitsWidth = false;
    bool fitsHeight = false;
    bool menusEnabled = true;
};

View viewOf(const Zevlin& form) {
    return {.fitScale = form.ZoomTable[0],
            .zoomLevel = form.ZoomLevel,
            .fitsWidth = form.MFitScreenWidth.Checked,
            .fitsHeight = form.MFitScreenHeight.Checked,
            .menusEnabled = form.MenusEnabled};
}

/// An export needs no printer, so it doesn't wait long for a print service that is silent.
void awaitPrinter(Zevlin& form) {
    constexpr std::chrono::seconds longestWait{2};
    if (isExporting(form))
        takePendingPrinter(form, longestWait);
    else
        takePendingPrinter(form);
}

bool refusesNarrowPage(Zevlin& form) {
    // Nothing is known of the page then.
    if (form.PrinterPending) return false;
    if (form.Myprinter.PageWidthInches >= narrowPageInches || form.PrintAlertShown) return false;
    form.PrintAlertShown = true;
    return toolkit::show({.text = "Printer's page width is less than 8 inches.\r\n"
                                  "For best results, please use 'Printer Setup...' to change "
                                  "paper and/or tray.\r\n"
                                  "Do you want to print this card anyway?",
                          .buttons = toolkit::Buttons::YesNo,
                          .icon = toolkit::Icon::Information,
                          .title = "Zevlin Print Alert",
                          .preset = toolkit::Answer::No}) == toolkit::Answer::No;
}

/// Whether there is a printer, and a page that suits the player.
bool mayBegin(Zevlin& form) {
    bool isRefused = true;
    trapped(form, trapHead, [&] {
        awaitPrinter(form);
        isRefused = refusesNarrowPage(form);
    });
    return !isRefused;
}

void commitEdits(Zevlin& form) {
    if (form.CText.Visible) CText_LostFocus(form);
    if (form.LText.Visible) LText_LostFocus(form);
    flushJournal(form);
    IniWrite(form);
}

void beginJob(Zevlin& form) {
    form.Printing = true;
    form.MenusEnabled = false;
    form.MousePointer = toolkit::MousePointer::Hourglass;
    PositionSave(form);
    form.P1.Visible = true;
    form.SetFocus(form.P1);
    TestBlankPage(form, "mPrint_Click before flatten for P1", form.P1);
}

/// The player keeps seeing the card as it is now.
void freezeScreen(Zevlin& form) {
    toolkit::doEvents();
    toolkit::flatten(form.P1);
    form.P2.Visible = false;
    form.P2.Move(form.P1.Left, form.P1.Top, form.P1.Width, form.P1.Height);
    form.P2.Picture = form.P1.Picture;
    TestBlankPage(form, "mPrint_Click after flatten for P1", form.P1);
    TestBlankPage(form, "mPrint_Click after flatten for P2", form.P2);
    form.P2.Visible = true;
}

void rebuildAtWorkingScale(Zevlin& form) {
    form.ZoomLevel = form.mPrintAlt.Checked ? form.DesignZoomLevel
                                            : static_cast<std::int16_t>(form.ZoomTable.size() - 1);
    const float scale = form.ZoomTable.at(static_cast<std::size_t>(form.ZoomLevel));
    form.ZoomTable[0] = scale;
    form.MFitScreenWidth.Checked = false;
    form.MFitScreenHeight.Checked = false;
    form.HasJobView = true;
    IniWrite(form);
    CheckPointShapes(form);
    SetImageSize(form, form.P1, form.PBase, scale, Rescale::Always);
    TestBlankPage(form, "mPrint_Click after SetImageSize for P1", form.P1);
    RebuildScreenImage(form);
    TestBlankPage(form, "mPrint_Click after RebuildScreenImage for P1", form.P1);
    form.P1.Visible = false;
    form.P1.Move(form.P2.Left, form.P2.Top);
}

bool makesBlack(const Zevlin& form) {
    const bool isWanted = form.MMono.Checked || form.Myprinter.BitsPerPixel == monochromeDepth;
    if (!isWanted || form.MColor.Checked) return false;
    return form.MMono.Checked || !isExporting(form);
}

void blacken(Zevlin& form) {
    MakeGray(form, form.P1);
    blackenLabels(form);
    TestBlankPage(form, "mPrint_Click after MakeGray for P1", form.P1);
}

void deliver(Zevlin& form) {
    const float height = printedHeight(pageFactsOf(form), form.P1.Height / form.P1.Width);
    PrintPictureBox(form, form.P1, {.x = 0, .y = 0, .height = height});
    TestBlankPage(form, "mPrint_Click after PrintPictureBox for P1", form.P1);
}

void runJob(Zevlin& form) {
    commitEdits(form);
    beginJob(form);
    freezeScreen(form);
    rebuildAtWorkingScale(form);
    if (makesBlack(form)) blacken(form);
    MakeTimeStamp(form);
    deliver(form);
}

void putViewBack(Zevlin& form, const View& view) {
    form.ZoomTable[0] = view.fitScale;
    form.ZoomLevel = view.zoomLevel;
    form.MFitScreenWidth.Checked = view.fitsWidth;
    form.MFitScreenHeight.Checked = view.fitsHeight;
    form.HasJobView = false;
}

/// The rebuild may have given the card another size, if a fit came out differently: it returns to
/// where it was.
void putCardBack(Zevlin& form) { form.P1.Move(form.P2.Left, form.P2.Top); }

/// Whatever happened, the card comes back: a step that fails doesn't keep the next from running.
void restore(Zevlin& form, const View& view) {
    const auto step = [&form](auto body) { trapped(form, trapHead, body); };
    const bool wasFrozen = form.P2.Visible;
    step([&] {
        // The fields are painted into the picture, so it is drawn anew even if the scale is the
        // same.
        RestoreBackgroundPicture(form, Rescale::Always);
    });
    putViewBack(form, view);
    step([&] {
        IniWrite(form);
        if (wasFrozen) RebuildScreenImage(form);
    });
    step([&] {
        if (wasFrozen) putCardBack(form);
        RestoreShapes(form);
    });
    form.P1.Visible = true;
    form.P2.Visible = false;
    form.P2.Picture.reset();
    form.MousePointer = toolkit::MousePointer::Default;
    form.MenusEnabled = view.menusEnabled;
    form.Printing = false;
    tellFileFailures(form);
}

} // namespace

void MPrint_Click(Zevlin& form) {
    if (form.Printing) return;
    Traceit(form, "MPrint_Click");
    // It would lie over the card that comes back, and the keys would no longer go to it.
    if (form.THelp.Visible) hideHelp(form);
    if (!mayBegin(form)) return;
    const View view = viewOf(form);
    trapped(form, trapHead, [&] { runJob(form); });
    restore(form, view);
    showFileNote(form);
}

} // namespace zev
