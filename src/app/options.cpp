#include "app/options.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <utility>

#include "app/data_folder.h"
#include "app/file_failures.h"
#include "app/options_file.h"
#include "app/services.h"
#include "app/trace.h"
#include "app/zevlin.h"
#include "layout/read_comment.h"
#include "output/printer_facts.h"
#include "toolkit/ansi.h"
#include "toolkit/files.h"
#include "toolkit/number_text.h"
#include "toolkit/program.h"
#include "toolkit/screen.h"
#include "view/colors.h"
#include "view/fit.h"

namespace zev {
namespace {

/// For so long the end of the program waits for a print service that was asked.
constexpr std::chrono::seconds longestFarewell{2};

constexpr int largestColor = (1 << 24) - 1;

void setZoom(Zevlin& form, const OptionLine& line) {
    if (line.number > 0 && line.number <= form.ZoomLevels) {
        form.ZoomLevel = static_cast<std::int16_t>(line.number);
    }
}

void setFit(Zevlin& form, const OptionLine& line) {
    if (line.number == 1) {
        form.MFitScreenWidth.Checked = true;
        MFitScreenWidth_Click(form);
    } else if (line.number == 2) {
        form.MFitScreenHeight.Checked = true;
        MFitScreenHeight_Click(form);
    }
}

void setFontSize(Zevlin& form, const OptionLine& line) {
    form.mNormalTextFont.Checked = false;
    switch (line.number) {
    case 1:
        form.mSmallerTextFont.Checked = true;
        break;
    case 2:
        form.mLargerTextFont.Checked = true;
        break;
    case 3:
        form.mBigTextFont.Checked = true;
        break;
    default:
        form.mNormalTextFont.Checked = true;
        break;
    }
}

void setPrintAlternate(Zevlin& form, const OptionLine& line) {
    form.mPrintAlt.Checked = line.number == 1;
    form.PrintMethod = line.number == 1 ? alternatePrintMethod : primaryPrintMethod;
}

void setPrinter(Zevlin& form, const OptionLine& line) {
    if (form.mPrintAlt.Checked && !line.value.empty()) form.Myprinter.Devicename = line.value;
}

void setPaperBin(Zevlin& form, const OptionLine& line) {
    if (form.mPrintAlt.Checked && line.number > 0) form.Myprinter.PaperBin = line.number;
}

/// A font is taken only if the font system reports its name back.
void setFont(Zevlin& form, std::string& name, const OptionLine& line) {
    if (form.Testtext.SetFontName(line.value) == line.value) name = line.value;
}

void setColorScheme(Zevlin& form, const OptionLine& line) {
    const int value = line.number < 0 || line.number > largestColor ? 0 : line.number;
    form.ColorScheme = value;
    const int last = static_cast<int>(form.mcolorscheme.size()) - 1;
    mColorScheme_Click(form, std::min(value, last));
}

void setTrace(Zevlin& form, const OptionLine& line) {
    if (line.number == 1) form.TraceOn = form.TraceSetting = true;
}

using Setter = void (*)(Zevlin&, const OptionLine&);

/// Printer and tray come behind PrintAlt, on which they depend.
constexpr auto setters = std::to_array<std::pair<std::string_view, Setter>>({
    {"name", [](Zevlin& form, const OptionLine& line) { form.MyName = line.value; }},
    {"number", [](Zevlin& form, const OptionLine& line) { form.MyNumber = line.value; }},
    {"mono",
     [](Zevlin& form, const OptionLine& line) { form.MMono.Checked = line.number == 1; }},
    {"color",
     [](Zevlin& form, const OptionLine& line) { form.MColor.Checked = line.number == 1; }},
    {"zoom", setZoom},
    {"fit", setFit},
    {"fontsize", setFontSize},
    {"bold", [](Zevlin& form, const OptionLine& line) { form.mBold.Checked = line.number == 1; }},
    {"printalt", setPrintAlternate},
    {"printer", setPrinter},
    {"paperbin", setPaperBin},
    {"normalfont",
     [](Zevlin& form, const OptionLine& line) { setFont(form, form.TextFontName, line); }},
    {"narrowfont",
     [](Zevlin& form, const OptionLine& line) { setFont(form, form.NarrowFontName, line); }},
    {"symfont", [](Zevlin& /*form*/, const OptionLine& /*line*/) {}},
    {"suitfont",
     [](Zevlin& form, const OptionLine& line) { setFont(form, form.SuitFontName, line); }},
    {"fillincheckmarks",
     [](Zevlin& form, const OptionLine& line) { form.mFillIn.Checked = line.number == 1; }},
    {"colorscheme", setColorScheme},
    {"trace", setTrace},
    // Written by older versions only.
    {"smaller",
     [](Zevlin& form, const OptionLine& line) {
         if (line.number == 1) form.mSmallerTextFont.Checked = true;
     }},
});

void applyOption(Zevlin& form, const OptionLine& line) {
    for (const auto& [key, set] : setters) {
        if (key == line.key) return set(form, line);
    }
}

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

/// A first run's file. One that turned up since the program looked for it is the player's.
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
    // However a job ends, no start is to find its view: the rebuild takes it from memory.
    if (form.HasJobView) {
        form.OptionsUnwritten = true;
        return;
    }
    // A file that couldn't be written tells an old view.
    form.OptionsUnwritten = !trappedAndNoted(form, "Error in IniWrite ", optionsFailure, [&] {
        const auto file = toolkit::resolveFile(form.DataFolder, optionsFileName);
        const std::string content = writeOptions(documentOf(form));
        if (form.OptionsRead)
            toolkit::writeFile(file, content);
        else
            writeFirstOptions(form, file, content);
    });
    // Whatever failed before, by the time it is told the settings stand in the file.
    if (!form.OptionsUnwritten) forgetFileFailure(form, optionsFailure);
}

} // namespace

bool hasUnreadOptions(const Zevlin& form) {
    return !form.OptionsRead && toolkit::findFile(form.DataFolder, optionsFileName).has_value();
}

void readOptions(Zevlin& form, std::string content) {
    form.OptionsRead = true;
    form.VersionSeen.clear();
    toolkit::TextInput input(std::move(content));
    while (!SkipComment(form, input)) {
        if (const auto line = parseOption(input.readLine())) applyOption(form, *line);
    }
}

void IniWrite(Zevlin& form) {
    Traceit(form, "IniWrite");
    // A slow print service keeps nobody waiting: its printer gets into the file when it is known.
    askForPendingPrinter(form, [&form] { writeOptionsFile(form); });
    writeOptionsFile(form);
}

void completeOptions(Zevlin& form) {
    const bool isAnswered = form.PrinterPending && form.PrinterAsked.isAnswered(longestFarewell);
    if (isAnswered) takePendingPrinter(form);
    if (isAnswered || form.OptionsUnwritten) writeOptionsFile(form);
}

} // namespace zev
