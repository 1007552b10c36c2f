#include "app/read_options.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "form/options_file.h"
#include "form/zevlin.h"
#include "layout/read_comment.h"
#include "view/color_panel.h"
#include "view/fit.h"

namespace zev {
namespace {

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
void setFont(std::string& name, const OptionLine& line) {
    if (toolkit::fontNameGiven(line.value) == line.value) name = line.value;
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

/// Printer and tray follow PrintAlt, on which they depend.
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
     [](Zevlin& form, const OptionLine& line) { setFont(form.TextFontName, line); }},
    {"narrowfont",
     [](Zevlin& form, const OptionLine& line) { setFont(form.NarrowFontName, line); }},
    {"symfont", [](Zevlin& /*form*/, const OptionLine& /*line*/) {}},
    {"suitfont",
     [](Zevlin& form, const OptionLine& line) { setFont(form.SuitFontName, line); }},
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

} // namespace

void readOptions(Zevlin& form, std::string content) {
    form.OptionsRead = true;
    form.VersionSeen.clear();
    toolkit::TextInput input(std::move(content));
    while (!SkipComment(form, input)) {
        if (const auto line = parseOption(input.readLine())) applyOption(form, *line);
    }
}

} // namespace zev
