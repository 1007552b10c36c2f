#include "form/options.h"

#include <chrono>
#include <string>

#include "form/file_failures.h"
#include "form/options_file.h"
#include "form/printer_facts.h"
#include "form/services.h"
#include "form/trace.h"
#include "form/write_options.h"
#include "form/zevlin.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/path_text.h"
#include "toolkit/base/twips.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/screen.h"
#include "toolkit/window/shell_folders.h"

namespace zev {
namespace {

/// How long the program waits at its end for the answer of the print service.
constexpr std::chrono::seconds longestFarewell{2};

int checkedFit(const Zevlin& form) {
    if (form.MFitScreenWidth.Checked) return 1;
    return form.MFitScreenHeight.Checked ? 2 : 0;
}

int checkedFontSize(const Zevlin& form) {
    if (form.mSmallerTextFont.Checked) return 1;
    if (form.mLargerTextFont.Checked) return 2;
    return form.mBigTextFont.Checked ? 3 : 0;
}

void describeMachine(Zevlin& form, OptionsDocument& document) {
    const auto screen = toolkit::screen();
    document.printer = form.CurrentPrinter;
    document.facts = form.Myprinter;
    if (form.PrinterPending) {
        // What the player chose in an earlier run must not be lost.
        document.printer.DeviceName = form.Myprinter.Devicename;
        document.printer.PaperBin = form.Myprinter.PaperBin;
    }
    document.systemVersion = WinVer(form);
    document.screenWidth = screen.Width;
    document.screenHeight = screen.Height;
    document.twipsPerPixel = form.TwipsPerPixel;
    document.actualTwipsX = screen.TwipsPerPixelX;
    document.actualTwipsY = screen.TwipsPerPixelY;
    document.applicationPath = toolkit::displayText(toolkit::programFolder());
    document.documentsPath = toolkit::displayText(form.DataFolder);
    document.currentPath = toolkit::displayText(currentFolder(form));
    ignoringFailures([&] { document.memory = toolkit::memoryFacts(); });
    document.memoryLoad = MemoryLoad(form);
    document.usage.current = GetMemoryUsage(form, document.usage.peak);
}

OptionsDocument documentOf(Zevlin& form) {
    OptionsDocument document;
    document.programVersion = form.ProgramVersion;
    document.name = form.MyName;
    document.number = form.MyNumber;
    document.mono = form.MMono.Checked;
    document.color = form.MColor.Checked;
    document.zoom = form.ZoomLevel;
    document.fit = checkedFit(form);
    document.fontSize = checkedFontSize(form);
    document.bold = form.mBold.Checked;
    document.printAlternate = form.mPrintAlt.Checked;
    document.normalFont = form.TextFontName;
    document.narrowFont = form.NarrowFontName;
    document.markFont = form.MarkFontName;
    document.suitFont = form.SuitFontName;
    document.fillIn = form.mFillIn.Checked;
    document.colorScheme = form.ColorScheme;
    document.trace = form.TraceSetting;
    describeMachine(form, document);
    return document;
}

/// Writes the file of a first run, but not over one that has turned up since the program looked for
/// it: that is the player's.
void writeFirstOptions(Zevlin& form, const std::filesystem::path& file,
                       const std::string& content) {
    try {
        toolkit::writeNewFile(file, content);
        form.OptionsRead = true;
    } catch (const toolkit::RunTimeError& failure) {
        if (failure.failure() != toolkit::Failure::FileAlreadyExists) throw;
        Traceit(form, "IniWrite: ZEV.Ini is there and hasn't been read, so it stays as it is");
    }
}

void writeOptionsFile(Zevlin& form) {
    // The zoom and fit of a job must never reach the file: the next start would show them.
    if (form.HasJobView) {
        form.OptionsUnwritten = true;
        return;
    }
    // A file that couldn't be written has the settings of some time ago.
    form.OptionsUnwritten = !trappedAndNoted(form, "Error in IniWrite ", optionsFailure, [&] {
        const auto file = toolkit::resolveFile(form.DataFolder, optionsFileName);
        const std::string content = writeOptions(documentOf(form));
        if (form.OptionsRead)
            toolkit::writeFile(file, content);
        else
            writeFirstOptions(form, file, content);
    });
    // The settings are in the file now: an earlier failure needn't be told any more.
    if (!form.OptionsUnwritten) forgetFileFailure(form, optionsFailure);
}

} // namespace

bool hasUnreadOptions(const Zevlin& form) {
    return !form.OptionsRead && toolkit::findFile(form.DataFolder, optionsFileName).has_value();
}

void IniWrite(Zevlin& form) {
    Traceit(form, "IniWrite");
    // Nobody waits for a slow print service: the printer gets into the file once it is known.
    askForPendingPrinter(form, [&form] { writeOptionsFile(form); });
    writeOptionsFile(form);
}

void completeOptions(Zevlin& form) {
    const bool isAwaited = form.PrinterPending && form.PrinterAsked.isAsked();
    if (isAwaited) takePendingPrinter(form, longestFarewell);
    const bool isTaken = isAwaited && !form.PrinterPending;
    if (isTaken || form.OptionsUnwritten) writeOptionsFile(form);
}

} // namespace zev
