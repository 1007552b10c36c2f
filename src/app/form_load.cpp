#include "app/form_load.h"

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "app/command_line.h"
#include "app/data_folder.h"
#include "app/hooks.h"
#include "app/initialize.h"
#include "card/card_file.h"
#include "card/card_names.h"
#include "card/chooser.h"
#include "card/file_seen.h"
#include "card/lifecycle.h"
#include "card/load.h"
#include "card/rescue.h"
#include "card/take_card.h"
#include "design/pen.h"
#include "form/background.h"
#include "form/file_failures.h"
#include "form/modified.h"
#include "form/options.h"
#include "form/printer_facts.h"
#include "form/services.h"
#include "form/settings.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "help/help_page.h"
#include "help/menu_tooltips.h"
#include "layout/check_point.h"
#include "layout/check_update.h"
#include "layout/renew_layout.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/file_names.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/base/twips.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/program.h"
#include "view/felt.h"

namespace zev {
namespace {

constexpr int documentsFolderIdentifier = 5;

struct LoadRun {
    int step = 0;
    bool showHelp = false;
    bool layoutAsked = false;     ///< whether the layout for the present card was offered
    std::optional<Rescue> rescue; ///< what the player wants back from an earlier run
};

/// True on a first run: the data folder had no options file yet.
bool findDataFolder(Zevlin& form) {
    form.DocumentsFolder = GetSpecialFolder(form, documentsFolderIdentifier);
    if (form.DocumentsFolder.empty()) return false;
    form.DataFolder = dataFolderIn(form.DocumentsFolder);
    const bool firstRun = !toolkit::findFile(form.DataFolder, optionsFileName);
    form.mDocsFolder.Visible = false;
    form.mDocsFolder.Checked = true;
    if (firstRun) mDocsFolder_Click(form);
    return firstRun;
}

/// The steps whose failures don't count.
void prepare(Zevlin& form, LoadRun& run) {
    ignoringFailures(
        [&] { form.TwipsPerPixel = static_cast<std::int16_t>(toolkit::twipsPerPixel()); });
    ignoringFailures([&] { run.showHelp = findDataFolder(form); });
    toolkit::deleteLeftOvers(form.DataFolder);
    ignoringFailures([&] { AppVersion(form); });
    ignoringFailures([&] { HelpCreate(form); });
    ignoringFailures([&] {
        Traceit(form, "Form_Load " + toolkit::dateTimeText() +
                          ", path: " + toolkit::displayText(form.DataFolder));
    });
    // A failure of the steps that follow must not be taken for a missing printer.
    ignoringFailures([&] { takePrinterToken(form); });
}

void deleteIfThere(const Zevlin& form, const std::string& name) {
    if (const auto file = toolkit::findFile(form.DataFolder, name)) toolkit::deleteFile(*file);
}

void applyKindOfBuild(Zevlin& form) {
    form.ProductionBuild = IsProductionEnvironment(form);
    if (!form.ProductionBuild) deleteIfThere(form, "Trace.txt");
    form.MShapes.Visible = !form.ProductionBuild;
    form.MShowDesignMenu.Checked = !form.ProductionBuild;
    form.WheelHooked = form.ProductionBuild;
    if (form.WheelHooked) hookWheel(form);
    if (!form.ProductionBuild) return;
    InitMenuDescriptions(form);
    hookMenus(form);
}

void hidePrintColorItems(Zevlin& form) {
    form.MMono.Visible = false;
    form.MColor.Visible = form.MMono.Visible;
    form.z21.Visible = form.MMono.Visible;
}

void setFonts(Zevlin& form) {
    form.MarkFontName = "Wingdings";
    form.TextFontName = "Arial";
    form.NarrowFontName = "Arial Narrow";
    form.FallbackFontName = "Tahoma";
    form.MarkFontName2 = "Wingdings 2";
    form.SuitFontName = "Symbol";
    form.AText[0].Caption.clear();
    form.AMark[0].Caption.clear();
    form.BackColor = form.LSaveAs.BackColor = form.FormBackColor;
    form.SuitChars = "\xA7\xA8\xA9\xAA";
    form.PrintMethod = primaryPrintMethod;
}

void setPen(Zevlin& form) {
    MSmall_Click(form);
    MBlack_Click(form);
    MCheck_Click(form);
}

void setZoom(Zevlin& form) {
    form.ZoomLevels = 11;
    form.ZoomTable = {0,    0.2F,        0.25F, 1.0F / 3.0F, 0.425F, 0.5F,
                      0.6F, 2.0F / 3.0F, 0.75F, 0.8F,        0.9F,   1.0F};
    form.DesignZoomLevel = 5;
    form.ZoomLevel = 4;
}

/// A picture that the player put into the data folder takes the place of the built-in card.
void choosePicture(Zevlin& form) {
    if (const auto file = toolkit::findFile(form.DataFolder, "Convention card.gif")) {
        form.PBase.load(*file);
    }
}

void prepareForm(Zevlin& form, LoadRun& run) {
    applyKindOfBuild(form);
    CheckIniUpdate(form);
    hidePrintColorItems(form);
    form.FormBackColor = form.BackColor;
    // What another one has set aside is its own, and a job's layout stands in its place.
    if (!isAnotherCopyAtWork(form)) RestoreShapes(form);
    if (!isLayoutSetAside(form)) run.layoutAsked = renewLayout(form);
    setFonts(form);
    setPen(form);
    setZoom(form);
    form.BGPat.Picture = std::make_shared<const toolkit::Bitmap>(feltTile());
    choosePicture(form);
}

bool canBeOpened(const Zevlin& form) {
    return !form.CardName.empty() && !isTemporaryCard(form.CardName) &&
           toolkit::isPossibleFileName(form.CardName + std::string(cardExtension)) &&
           findCard(form, form.CardName);
}

/// A copy of a card from elsewhere is opened in its place.
std::string cardToOpen(Zevlin& form, std::string_view commandLine) {
    const auto file = fileNamedBy(commandLine);
    if (!file) return cardNameOf(commandLine);
    const auto own = ownCardOf(form, *file);
    return own ? *own : takeCopy(form, *file).value_or("");
}

void openNamedCard(Zevlin& form, std::string_view commandLine) {
    form.CardName = cardToOpen(form, commandLine);
    if (!canBeOpened(form)) {
        // The blank card stays, without a name.
        form.CardName.clear();
        return;
    }
    form.TSaveAs.Text = form.CardName;
    form.ChooserTaken = true;
    GetCardFile(form);
    if (!form.Printing && !form.Zooming) SetCaption(form);
    form.P1.Move(0, 0);
}

void openFirstCard(Zevlin& form, std::string_view commandLine) {
    if (!commandLine.empty()) return openNamedCard(form, commandLine);
    if (!listCards(form).empty() && !form.THelp.Visible) MOpen_Click(form);
}

void placeMenuHelp(Zevlin& form) {
    form.PopHelp.Move(form.ScaleWidth() * 3 / 8, 0, form.ScaleWidth() / 4, form.PopHelp.Height * 4);
    form.PopHelp.Font.Size = form.TwipsPerPixel == 15 ? 9 : 8;
}

void showCard(Zevlin& form, const LoadRun& run) {
    form.P1.Visible = true;
    form.SetFocus(form.P1);
    toolkit::doEvents();
    if (run.showHelp) MHelp_Click(form);
    if (!form.THelp.Visible) return;
    form.P1.Enabled = false;
    form.SetFocus(form.THelp);
}

void finish(Zevlin& form, LoadRun& run) {
    placeMenuHelp(form);
    ResetMod(form);
    form.DesignDirty = false;
    form.OrigIndex = 0;
    if (run.rescue) openRescued(form, std::move(*run.rescue));
    toolkit::doEvents();
    // The version in the options says that the layout was offered.
    if (run.layoutAsked) IniWrite(form);
    tellFileFailures(form);
    form.IsLoaded = true;
}

void load(Zevlin& form, std::string_view commandLine, LoadRun& run) {
    run.step = 1000;
    prepareForm(form, run);
    run.step = 2000;
    takeDefaultPrinter(form, run.step);
    run.step = 2100;
    form.Top = 0;
    form.LastSchemeIndex = static_cast<std::int16_t>(form.mcolorscheme.size() - 1);
    run.rescue = offerRescue(form);
    Initialize(form);
    MNew_Click(form);
    CreateBG(form, form.BGPat, 0, 0);
    if (!run.rescue) openFirstCard(form, commandLine);
    showCard(form, run);
    finish(form, run);
}

std::string printerMissingText() {
    return "This computer does not have a 'default printer' and ZEV cannot run without one.\r"
           "To assign a default printer to your computer:\r"
           "  1. click the Windows Start button\r"
           "  2. select the Control Panel\r"
           "  3. select the 'Printers and Fax' folder,\r"
           "  4. decide which printer to designate as the default\r"
           "  5. right-click on its name, and select 'Set as default printer'\r"
           "  6. close that folder and close the Control Panel\r"
           "\r"
           "Once a default printer has been assigned, try starting the Zevlin again.";
}

[[noreturn]] void endFailedLoad(Zevlin& form, const toolkit::RunTimeError& failure, int step) {
    const auto number = toolkit::numberText(failure.number());
    const auto stepText = toolkit::numberText(step);
    traceFailure(form, "Error in Form_Load ", failure,
                 ", at step " + stepText + ", hdc=" + toolkit::numberText(form.Myprinter.hdc));
    // Without a printer, that is told as the cause of any failure.
    toolkit::tell(form.Myprinter.hdc == 0 ? printerMissingText()
                                          : "Sorry, program error #" + number + " (" +
                                                failure.description() + ")\nat step " + stepText +
                                                " while starting. Please send 'Trace.txt' to " +
                                                std::string(supportAddress) +
                                                ", and mention both the error # and the step.",
                  toolkit::Icon::Exclamation);
    toolkit::endProgram(EXIT_FAILURE);
}

} // namespace

void Form_Load(Zevlin& form, std::string_view commandLine) {
    LoadRun run;
    prepare(form, run);
    try {
        load(form, commandLine, run);
    } catch (const std::exception&) {
        endFailedLoad(form, toolkit::currentFailure(), run.step);
    }
}

} // namespace zev
