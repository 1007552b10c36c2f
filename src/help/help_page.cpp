#include "help/help_page.h"

#include <algorithm>

#include "form/file_note.h"
#include "form/panels.h"
#include "form/printer_facts.h"
#include "form/settings.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "help/help_text.h"
#include "help/printed_help.h"
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
/// Points; in a form too narrow for it the lines are cut.
constexpr float smallestFont = 8.25F;
/// Pixels of the button, and from its left edge to the page's right one: so much of the width
/// margin that it covers no text, and no scroll bar.
constexpr float buttonSize = 24;
constexpr float buttonFromRight = 46;
constexpr float buttonFromTop = 1;
constexpr float buttonPoints = 14;
constexpr std::string_view printedTitle = "How To Use the Zevlin";

void bringToFront(Zevlin& form, toolkit::Control& control) {
    control.Stack =
        std::max({form.P1.Stack, form.THelp.Stack, form.PHelp.Stack, form.PopHelp.Stack}) + 1;
}

float widestLine(const Zevlin& form) {
    float widest = 0;
    for (const auto& line : form.THelp.List)
        widest = std::max(widest, toolkit::textWidth(form.Testtext.Font, line));
    return widest;
}

/// In letters as large as the form has room for. Title bar and menu bar are no room.
void sizeToText(Zevlin& form) {
    toolkit::ListBox& page = form.THelp;
    const auto pixel = static_cast<float>(form.TwipsPerPixel);
    const float widest = form.ScaleWidth() - freeWidth * pixel;
    page.Font = fittedHelpFont(page.Font, page.List, widest - widthMargin * pixel);
    page.Font.Size = std::max(page.Font.Size, smallestFont);
    form.Testtext.Font = page.Font;
    const auto lines = static_cast<float>(page.List.size());
    const float height = toolkit::textHeight(form.Testtext.Font) * lines + heightMargin * pixel;
    page.Width = std::min(widestLine(form) + widthMargin * pixel, widest);
    page.Height = std::min(height, form.ScaleHeight() - freeHeight * pixel);
}

void placeButton(Zevlin& form) {
    const auto pixel = static_cast<float>(form.TwipsPerPixel);
    form.PHelp.BackColor = form.THelp.BackColor;
    form.PHelp.Move(form.THelp.Left + form.THelp.Width - buttonFromRight * pixel,
                    form.THelp.Top + buttonFromTop * pixel, buttonSize * pixel, buttonSize * pixel);
    form.BHelp.Font = {.Name = form.THelp.Font.Name, .Size = buttonPoints};
    form.BHelp.Move(0, 0, form.PHelp.Width, form.PHelp.Height);
}

void showPage(Zevlin& form) {
    layOutHelp(form);
    form.THelp.Visible = form.PHelp.Visible = form.BHelp.Visible = true;
    bringToFront(form, form.THelp);
    bringToFront(form, form.PHelp);
    form.SetFocus(form.THelp);
    form.THelp.ListIndex = 1;
    form.THelp.TopIndex = 0;
}

void closePage(Zevlin& form) {
    hideHelp(form);
    bringToFront(form, form.P1);
}

/// Twips by which the text stays away from the ends of the printable part: from those of the paper
/// it is half an inch at least.
float marginBeside(int unprintablePixels, float twipsPerPixel) {
    constexpr float halfInch = 720;
    return std::max(0.0F, halfInch - static_cast<float>(unprintablePixels) * twipsPerPixel);
}

void printLines(toolkit::PrintJob& job, const Zevlin& form) {
    const toolkit::Printer& printer = form.CurrentPrinter;
    const float left = marginBeside(printer.PhysicalOffsetX, printer.TwipsPerPixelX);
    const float top = marginBeside(printer.PhysicalOffsetY, printer.TwipsPerPixelY);
    const auto title = std::string(printedTitle) + "  (Version " + form.ProgramVersion + ")";
    const auto help = printedHelp(
        {.Name = form.THelp.Font.Name}, form.THelp.List, title,
        {.width = printer.ScaleWidth - 2 * left, .height = printer.ScaleHeight - 2 * top});
    std::size_t page = 0;
    for (const PrintedLine& line : help.lines) {
        for (; page < line.page; ++page) job.turnPage();
        job.write(line.text, help.font, left, top + line.top);
    }
}

void printPage(Zevlin& form) {
    hideFileNote(form);
    takePendingPrinter(form);
    const std::string name(printedTitle);
    const auto preset = form.DataFolder / toolkit::pathFromText(name + ".pdf");
    if (!form.PrinterDC.start(form.CurrentPrinter, {.title = name, .filePreset = preset})) return;
    printLines(form.PrinterDC, form);
    if (const auto file = form.PrinterDC.finish()) rememberWrittenFile(form, *file);
    showFileNote(form);
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

void layOutHelp(Zevlin& form) {
    sizeToText(form);
    form.THelp.Move((form.ScaleWidth() - form.THelp.Width) / 2,
                    (form.ScaleHeight() - form.THelp.Height) / 2);
    placeButton(form);
}

void MHelp_Click(Zevlin& form) {
    if (form.THelp.List.empty()) return;
    procedure(form, "MHelp_Click", [&] { showPage(form); });
}

void THelp_KeyPress(Zevlin& form, int& KeyAscii) {
    procedure(form, "THelp_KeyPress", [&] {
        if (KeyAscii == toolkit::key::enter || KeyAscii == toolkit::key::escape) closePage(form);
    });
}

void BHelp_Click(Zevlin& form) {
    procedure(form, "BHelp_Click", [&] { closePage(form); });
}

void THelp_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse) {
    Traceit(form, "Thelp_MouseDown");
    if (mouse.Button != toolkit::button::right) return;
    trapped(form, "Error in THelp_MouseDown: #", [&] { printPage(form); });
}

bool isHelpLink(const Zevlin& form, int line) {
    return line >= 0 && (line == form.MoreInformationLine || line == form.WebsiteLine);
}

void THelp_Click(Zevlin& form) {
    procedure(form, "THelp_Click", [&] {
        if (!isHelpLink(form, form.THelp.ListIndex)) return;
        hideHelp(form);
        const auto address = std::string(webAddress) + std::string(faqPath);
        toolkit::openWebPage(address.c_str());
    });
}

} // namespace zev
