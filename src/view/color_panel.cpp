#include "view/color_panel.h"

#include <algorithm>
#include <array>

#include "form/options.h"
#include "form/panel_look.h"
#include "form/panels.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/number_text.h"
#include "view/color_panel_layout.h"
#include "view/colors.h"

namespace zev {
namespace {

struct Preset {
    toolkit::Color color = 0;
    const char* name = nullptr;
};

constexpr std::array presets{
    Preset{toolkit::rgb(0, 0, 0), "Black"},        Preset{toolkit::rgb(0, 0, 128), "Dark blue"},
    Preset{toolkit::rgb(0, 128, 0), "Dark green"}, Preset{toolkit::rgb(128, 64, 255), "Purple"},
    Preset{toolkit::rgb(160, 0, 0), "Dark red"},   Preset{toolkit::rgb(128, 64, 0), "Brown"}};

/// How the options store black, since 0 stands for the ACBL's scheme.
constexpr toolkit::Color storedBlack = 1;

void showNumbers(Zevlin& form) {
    for (std::size_t i = 0; i < form.ColorID.size(); ++i)
        form.ColorID[i].Caption = toolkit::numberText(form.ColorScroll[i].Value);
}

std::string spokenColor(toolkit::Color color) {
    return "red " + toolkit::numberText(toolkit::redOf(color)) + ", green " +
           toolkit::numberText(toolkit::greenOf(color)) + ", blue " +
           toolkit::numberText(toolkit::blueOf(color));
}

void showSample(Zevlin& form, toolkit::Color color) {
    form.ColorLabel.BackColor = color;
    form.ColorLabel.AccessibleName = "Chosen color: " + spokenColor(color);
    form.ColorText.ForeColor = color;
}

void chooseColor(Zevlin& form, toolkit::Color color) {
    form.ColorScroll[0].Value = toolkit::redOf(color);
    form.ColorScroll[1].Value = toolkit::greenOf(color);
    form.ColorScroll[2].Value = toolkit::blueOf(color);
    showSample(form, color);
    showNumbers(form);
}

void loadSamples(Zevlin& form) {
    if (form.ColorSample.UBound() > 0) return;
    MakeObjRounded(form, form.ColorPic, panelCornerRadius);
    form.ColorSample[0].BackColor = presets[0].color;
    for (int i = 1; i < static_cast<int>(presets.size()); ++i) {
        toolkit::Label& sample = form.ColorSample.Load(i);
        const toolkit::Label& before = form.ColorSample[i - 1];
        sample.Left = before.Left + before.Width + sampleGap;
        sample.Visible = true;
        sample.BackColor = presets[static_cast<std::size_t>(i)].color;
    }
}

void openPanel(Zevlin& form) {
    if (form.THelp.Visible) hideHelp(form);
    layOutColorPanel(form);
    chooseColor(form, form.AText[1].ForeColor);
    loadSamples(form);
    ColorSampleMark(form);
    form.P1.Visible = false;
    // No other command may run before the scheme is chosen.
    form.MenusEnabled = false;
    form.ColorPic.Visible = true;
    form.ColorPic.Stack = std::max(form.P1.Stack, form.THelp.Stack) + 1;
    form.SetFocus(form.ColorScroll[0]);
}

void closePanel(Zevlin& form) {
    form.P1.Visible = true;
    form.ColorPic.Visible = false;
    form.MenusEnabled = true;
    form.SetFocus(form.P1);
}

void takeColor(Zevlin& form) {
    const auto last = static_cast<toolkit::Color>(form.mcolorscheme.size() - 1);
    form.ColorScheme = static_cast<std::int32_t>(std::max(form.ColorLabel.BackColor, last));
    SetGlobalColors(form);
    IniWrite(form);
}

void goBack(Zevlin& form) {
    form.mcolorscheme.at(static_cast<std::size_t>(form.LastSchemeIndex)).Checked = false;
    form.mcolorscheme.at(static_cast<std::size_t>(form.PreviousScheme)).Checked = true;
    mColorScheme_Click(form, form.PreviousScheme);
}

void checkScheme(Zevlin& form, int index) {
    form.PreviousScheme = static_cast<std::int16_t>(index);
    for (int i = 0; auto& item : form.mcolorscheme) {
        if (item.Checked && i != index) form.PreviousScheme = static_cast<std::int16_t>(i);
        item.Checked = false;
        ++i;
    }
    form.mcolorscheme.at(static_cast<std::size_t>(index)).Checked = true;
}

void chooseScheme(Zevlin& form, int index) {
    checkScheme(form, index);
    if (index < form.LastSchemeIndex) {
        form.ColorScheme = index;
    } else if (!form.Initializing) {
        // The panel's buttons take the scheme or go back.
        return openPanel(form);
    }
    if (form.AMark.UBound() > 0) SetGlobalColors(form);
    if (!form.Initializing) IniWrite(form);
}

} // namespace

void mColorScheme_Click(Zevlin& form, int index) {
    Traceit(form, toolkit::numberText(index) + " mColorScheme_Click ");
    trapped(form, "Error in mColorScheme_Click: #", [&] { chooseScheme(form, index); });
}

std::string colorSampleName(int index) { return presets.at(static_cast<std::size_t>(index)).name; }

void ColorSample_Click(Zevlin& form, int index) {
    procedure(form, "ColorSample_Click", [&] {
        chooseColor(form, form.ColorSample[index].BackColor);
        ColorSampleMark(form);
    });
}

void ColorID_Click(Zevlin& form, int index) {
    procedure(form, "ColorID_Click", [&] {
        chooseColor(form, form.ColorID.at(static_cast<std::size_t>(index)).BackColor);
        ColorSampleMark(form);
    });
}

void ColorScroll_Scroll(Zevlin& form, int /*index*/) {
    trapped(form, "Error in ColorScroll_Scroll: #", [&] {
        showSample(form, toolkit::rgb(form.ColorScroll[0].Value, form.ColorScroll[1].Value,
                                      form.ColorScroll[2].Value));
        showNumbers(form);
        ColorSampleMark(form);
    });
}

void ColorBut_Click(Zevlin& form, int index) {
    procedure(form, "ColorBut_Click", [&] {
        index == colorPanelOk ? takeColor(form) : goBack(form);
        closePanel(form);
    });
}

void ColorSampleMark(Zevlin& form) {
    procedure(form, "ColorSampleMark", [&] {
        const toolkit::Color chosen = form.ColorLabel.BackColor;
        for (toolkit::Label& sample : form.ColorSample)
            sample.Caption = sample.BackColor == chosen ? "X" : "";
        if (chosen == storedBlack) form.ColorSample[0].Caption = "X";
    });
}

} // namespace zev
