#include "help/help_page.h"

#include <algorithm>

#include "form/panels.h"
#include "form/settings.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "help/help_text.h"
#include "toolkit/base/key.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

/// Pixels that the list's frame, scroll bar and margins take.
constexpr float widthMargin = 50;
constexpr float heightMargin = 6;
/// Pixels of the form that stay free around the page.
constexpr float freeWidth = 4;
constexpr float freeHeight = 10;

void bringToFront(Zevlin& form, toolkit::Control& control) {
    control.Stack = std::max({form.P1.Stack, form.THelp.Stack, form.PopHelp.Stack}) + 1;
}

float widestLine(const toolkit::ListBox& list) {
    float widest = 0;
    for (const auto& line : list.List)
        widest = std::max(widest, toolkit::textWidth(list.Font, line));
    return widest;
}

void sizeToText(Zevlin& form) {
    const auto pixel = static_cast<float>(form.TwipsPerPixel);
    const auto lines = static_cast<float>(form.THelp.List.size());
    const float width = widestLine(form.THelp) + widthMargin * pixel;
    const float height = toolkit::textHeight(form.THelp.Font) * lines + heightMargin * pixel;
    form.THelp.Width = std::min(width, form.Width - freeWidth * pixel);
    form.THelp.Height = std::min(height, form.Height - freeHeight * pixel);
}

void showPage(Zevlin& form) {
    sizeToText(form);
    form.THelp.Move((form.Width - form.THelp.Width) / 2, (form.Height - form.THelp.Height) / 2);
    form.THelp.Visible = true;
    bringToFront(form, form.THelp);
    form.SetFocus(form.THelp);
    form.THelp.ListIndex = 1;
}

} // namespace

void HelpCreate(Zevlin& form) {
    procedure(form, "HelpCreate", [&] {
        auto help = helpText({form.ProgramVersion, toolkit::displayText(form.DataFolder),
                              webAddress, supportAddress});
        form.THelp.List = std::move(help.lines);
        form.THelp.ListIndex = -1;
        form.MoreInformationLine = help.moreInformationLine;
        form.WebsiteLine = help.websiteLine;
    });
}

void MHelp_Click(Zevlin& form) {
    if (form.THelp.List.empty()) return;
    procedure(form, "MHelp_Click", [&] { showPage(form); });
}

void THelp_KeyPress(Zevlin& form, int& KeyAscii) {
    procedure(form, "THelp_KeyPress", [&] {
        if (KeyAscii != toolkit::key::enter && KeyAscii != toolkit::key::escape) return;
        hideHelp(form);
        bringToFront(form, form.P1);
    });
}

void THelp_Click(Zevlin& form) {
    procedure(form, "THelp_Click", [&] {
        const int line = form.THelp.ListIndex;
        if (line < 0 || (line != form.MoreInformationLine && line != form.WebsiteLine)) return;
        hideHelp(form);
        const auto address = std::string(webAddress) + std::string(faqPath);
        toolkit::openWebPage(address.c_str());
    });
}

} // namespace zev
