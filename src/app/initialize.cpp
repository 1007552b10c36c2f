#include "app/initialize.h"

#include <algorithm>
#include <utility>

#include "app/fonts_check.h"
#include "app/initialize_failure.h"
#include "app/place_window.h"
#include "app/read_options.h"
#include "form/options.h"
#include "form/printer_facts.h"
#include "form/services.h"
#include "form/time_stamp.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "help/help_page.h"
#include "layout/build_fields.h"
#include "layout/calibration.h"
#include "layout/initialize_run.h"
#include "layout/read_comment.h"
#include "layout/save_layout.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/base/twips.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/program.h"
#include "toolkit/window/screen.h"
#include "view/colors.h"
#include "view/fit.h"
#include "view/image_size.h"

namespace zev {
namespace {

void begin(Zevlin& form) {
    Traceit(form, "Initialize");
    const auto folder = toolkit::displayText(form.DataFolder);
    Traceit(form, "Initialize: Changed path to: " + folder +
                      "  ... actual current path is: " + toolkit::displayText(currentFolder(form)));
    form.Initializing = true;
    form.TwipsPerPixel = static_cast<std::int16_t>(toolkit::twipsPerPixel());
    form.ScreenWidthPixels =
        toolkit::toInteger16(toolkit::screen().Width / static_cast<float>(form.TwipsPerPixel));
}

void readOptionsFile(Zevlin& form, InitializeRun& run) {
    run.step = 200;
    const auto file = toolkit::findFile(form.DataFolder, optionsFileName);
    const auto folder = toolkit::displayText(form.DataFolder);
    if (!file) {
        run.step = 490;
        Traceit(form, "Initialize step 490: ZEV.Ini not found in " + folder);
        run.step = 500;
        run.firstRun = !form.Carried;
        return;
    }
    run.step = 300;
    toolkit::FileHandle opened(*file, toolkit::FileMode::Read);
    run.step = 310;
    Traceit(form, "Initialize step 310: ZEV.Ini opened successfully in " + folder);
    readOptions(form, toolkit::readFile(std::move(opened)));
    run.step = 400;
    form.OptionsVersion = form.VersionSeen;
    form.mpopBold.Enabled = !form.mBold.Checked;
    run.firstRun = false;
}

/// In a rebuild the settings are in memory already, and stay as they are if the file can't be read.
void takeOptions(Zevlin& form, InitializeRun& run) {
    if (!form.Carried) return readOptionsFile(form, run);
    // The file is older than what is in memory.
    if (form.OptionsUnwritten) return;
    const bool known = form.OptionsRead;
    const std::string name = form.MyName;
    const std::string number = form.MyNumber;
    getOver(form, run, optionsFailure, [&] { readOptionsFile(form, run); });
    if (!known) return;
    // A name may hold the character that begins a comment in the file, which would cut it.
    form.MyName = name;
    form.MyNumber = number;
}

/// Chooses the printer of the alternate method by its name.
void choosePrinter(Zevlin& form) {
    // A printer that is still to be asked for will be this one.
    if (form.PrinterPending) return;
    if (!form.mPrintAlt.Checked || form.Myprinter.Devicename.empty()) return;
    const std::string& name = form.Myprinter.Devicename;
    // A printer that is chosen already keeps its paper and orientation.
    if (form.CurrentPrinter.DeviceName != name) {
        const auto names = toolkit::printerNames();
        if (std::ranges::find(names, name) == names.end()) return;
        toolkit::Printer printer = toolkit::printerNamed(name);
        if (printer.hdc == 0) return;
        form.CurrentPrinter = std::move(printer);
    }
    takeRememberedTray(form);
    readPrinterFacts(form);
}

void takePrinter(Zevlin& form, InitializeRun& run) {
    run.step = 550;
    try {
        choosePrinter(form);
    } catch (const std::exception&) {
        // A rebuild goes on with the printer that the program has.
        if (!form.Carried) throw;
        traceFailedInitialize(form, toolkit::currentFailure(), run.step);
    }
}

void sizePicture(Zevlin& form) {
    RestoreBackgroundPicture(form, Rescale::IfChanged);
    form.CardScale = form.P1.Width / (static_cast<float>(form.TwipsPerPixel) * designWidth);
    form.TextScale = form.MarkScale = form.CardScale;
    form.ColorBlack = toolkit::rgb(0, 0, 0);
    form.ColorRed = toolkit::rgb(195, 17, 25);
    form.ColorBlue = toolkit::rgb(62, 153, 206);
}

void finishFields(Zevlin& form) {
    form.LayoutVersion = form.VersionSeen;
    MakeTimeStamp(form);
    PositionTimeStamp(form);
    form.Timestamp.Visible = true;
    PositionCreditLabel(form);
    form.CreditLabel.Visible = true;
    form.Initializing = false;
}

/// A layout made at another resolution is written anew for this screen, at design size.
void convertLayout(Zevlin& form) {
    if (form.TwipsPerPixel == form.OriginalTwips) return;
    const auto level = form.ZoomLevel;
    if (form.ZoomLevel != form.DesignZoomLevel) {
        form.ZoomLevel = form.DesignZoomLevel;
        SetImageSize(form, form.P1, form.PBase,
                     form.ZoomTable.at(static_cast<std::size_t>(form.ZoomLevel)),
                     Rescale::IfChanged);
    }
    saveShapesUnasked(form);
    form.ZoomLevel = level;
    RestoreBackgroundPicture(form, Rescale::IfChanged);
}

void showForm(Zevlin& form, const InitializeRun& run) {
    // A rebuild paints only once, when the card is complete again.
    if (!form.Carried) toolkit::doEvents();
    form.Visible = true;
    if (!form.Carried) toolkit::doEvents();
    if (!run.firstRun || hasUnreadOptions(form)) return;
    if (!form.OptionsCarriedOver) {
        form.MFitScreenWidth.Checked = false;
        MFitScreenWidth_Click(form);
    }
    IniWrite(form);
    HelpCreate(form);
    MHelp_Click(form);
}

void colorFields(Zevlin& form) {
    KeepFieldColors(form);
    SetGlobalColors(form);
}

void runSteps(Zevlin& form, InitializeRun& run) {
    run.step = 100;
    begin(form);
    takeOptions(form, run);
    takePrinter(form, run);
    run.step = 600;
    sizePicture(form);
    run.step = 700;
    placeWindow(form, run);
    checkFonts(form, run);
    buildFields(form, run);
    run.step = 2500;
    finishFields(form);
    run.step = 2600;
    convertLayout(form);
    run.step = 2700;
    showForm(form, run);
    run.step = 2800;
    colorFields(form);
    run.step = 2900;
}

} // namespace

void Initialize(Zevlin& form) {
    InitializeRun run;
    try {
        runSteps(form, run);
        // The options file couldn't be seen for a moment: this is no first run.
        if (run.firstRun && hasUnreadOptions(form)) runSteps(form, run = {});
    } catch (const std::exception&) {
        const auto failure = toolkit::currentFailure();
        if (!form.Carried) endFailedInitialize(form, failure, run.step);
        // The boxes of the start would be wrong here, and the program must not end while a card is
        // open.
        traceFailedInitialize(form, failure, run.step);
        form.Initializing = false;
    }
}

} // namespace zev
