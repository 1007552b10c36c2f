#include "form/write_options.h"

#include <cmath>

#include "toolkit/base/number_text.h"
#include "toolkit/window/application.h"

namespace zev {
namespace {

using toolkit::numberText;
using toolkit::printedNumber;

constexpr std::string_view lineEnd = "\r\n";

constexpr std::string_view banner =
    "' "
    "***************************************************************************************\r\n"
    "' **       MODIFYING OR DELETING THIS FILE MAY PREVENT ZEV FROM WORKING PROPERLY       **\r\n"
    "' "
    "***************************************************************************************\r\n"
    "\r\n"
    "' This contains the values you selected on the OPTIONS menu, local settings, and some "
    "diagnostic data\r\n";

void appendLine(std::string& file, std::string_view label, std::string_view value) {
    file.append(label).append(value).append(lineEnd);
}

void appendLine(std::string& file, std::string_view label, double number) {
    appendLine(file, label, printedNumber(number));
}

/// Setting lines, their comments one below the other.
class SettingLines {
  public:
    explicit SettingLines(std::string& file) : file_(file) {}

    [[nodiscard]] std::size_t commentColumn() const { return commentColumn_; }

    void add(std::string_view key, std::string_view value, std::string_view comment) {
        std::string line = std::string(key) + "=" + std::string(value);
        if (line.size() < commentColumn_) line.resize(commentColumn_, ' ');
        file_.append(line).append("  '").append(comment).append(lineEnd);
    }
    void add(std::string_view key, bool value, std::string_view comment) {
        add(key, std::string_view(value ? "1" : "0"), comment);
    }
    void add(std::string_view key, int value, std::string_view comment) {
        add(key, std::string_view(numberText(value)), comment);
    }

    /// Like add, but a line that reaches the comment column moves it, for this and all later lines.
    void addWidening(std::string_view key, std::string_view value, std::string_view comment) {
        commentColumn_ = std::max(commentColumn_, key.size() + 1 + value.size());
        add(key, value, comment);
    }

    void separate() { file_ += lineEnd; }

  private:
    std::string& file_;
    std::size_t commentColumn_ = 35;
};

void addPlayer(SettingLines& lines, const OptionsDocument& document) {
    if (!document.name.empty()) lines.addWidening("Name", document.name, "User name");
    if (!document.number.empty()) lines.add("Number", document.number, "User's ACBL ID number");
}

void addView(SettingLines& lines, const OptionsDocument& document) {
    lines.add("Mono", document.mono, "forced Monochrome printing: 0=no, 1=yes");
    lines.add("Color", document.color, "forced Color printing: 0=no, 1=yes");
    lines.add("Zoom", document.zoom, "Zoom level.  If out of range, a valid default will be used");
    lines.add("Fit", document.fit, "Fit to screen: 1=width; 2=height; 0=use zoom level");
    lines.add("FontSize", document.fontSize,
              "Small text font control: 0=normal; 1=smaller, 2=larger, 3=big");
    lines.add("Bold", document.bold, "Use Boldface by default: 0=no; 1=yes");
}

void addPrinter(SettingLines& lines, const OptionsDocument& document) {
    lines.add("PrintAlt", document.printAlternate,
              "Use secondary print method (if primary prints blank pages): 0=no; 1=yes");
    constexpr std::string_view key = "Printer";
    const std::string& name = document.printer.DeviceName;
    // A name that reaches the comments is left out, deliberately.
    if (key.size() + 1 + name.size() < lines.commentColumn()) lines.add(key, name, "Printer");
    lines.add("PaperBin", document.printer.PaperBin, "Paper Tray");
    lines.separate();
}

void addFonts(SettingLines& lines, const OptionsDocument& document) {
    lines.add("Normalfont", document.normalFont, "Normal text font.  Change at your own risk.");
    lines.add("Narrowfont", document.narrowFont, "Narrow text font.  Change at your own risk.");
    lines.add("Symfont", document.markFont,
              "Marks font.  Just for checkmarks and circles.  Do not change.");
    lines.add("Suitfont", document.suitFont, "Suits font.  Do not change.");
    lines.separate();
}

void addCard(SettingLines& lines, const OptionsDocument& document) {
    lines.add("Fillincheckmarks", document.fillIn,
              "Use checkmarks or filled-in squares: 0=checkmarks (default), 1=filled-in");
    const std::int64_t scheme = document.colorScheme < 0 ? -1 : document.colorScheme;
    lines.add("ColorScheme", std::to_string(scheme),
              "Global color scheme: 0=ACBL, 1=Black, 2-16777215=actual value");
    lines.add("Trace", document.trace,
              "Trace program activities to a disk file (troubleshooting): 0=no, 1=yes");
    lines.separate();
}

void appendSettings(std::string& file, const OptionsDocument& document) {
    SettingLines lines(file);
    addPlayer(lines, document);
    addView(lines, document);
    addPrinter(lines, document);
    addFonts(lines, document);
    addCard(lines, document);
}

void appendPrinter(std::string& file, const toolkit::Printer& printer) {
    appendLine(file, "'   Printer:", "");
    appendLine(file, "'     DeviceName:        ", printer.DeviceName);
    appendLine(file, "'     hdc:              ", printer.hdc);
    appendLine(file, "'     ColorMode:        ", printer.ColorMode);
    appendLine(file, "'     Copies            ", printer.Copies);
    appendLine(file, "'     Height:           ", printer.Height);
    appendLine(file, "'     ScaleHeight:      ", printer.ScaleHeight);
    appendLine(file, "'     Width:            ", printer.Width);
    appendLine(file, "'     ScaleWidth:       ", printer.ScaleWidth);
    appendLine(file, "'     Orientation:      ", printer.Orientation);
    appendLine(file, "'     PaperBin:         ", printer.PaperBin);
    appendLine(file, "'     PaperSize:        ", printer.PaperSize);
    appendLine(file, "'     TwipsX:           ", printer.TwipsPerPixelX);
    file += lineEnd;
}

void appendFacts(std::string& file, const PrinterFacts& facts) {
    appendLine(file, "'   Myprinter:", "");
    appendLine(file, "'     Devicename:        ", facts.Devicename);
    appendLine(file, "'     hdc:              ", facts.hdc);
    appendLine(file, "'     BitsPerPixel:     ", facts.BitsPerPixel);
    appendLine(file, "'     PageHeightInches: ", facts.PageHeightInches);
    appendLine(file, "'     PageWidthInches:  ", facts.PageWidthInches);
    appendLine(file, "'     PixPerInchx:      ", facts.PixPerInchx);
    appendLine(file, "'     PaperBin:         ", facts.PaperBin);
    file += lineEnd;
}

std::string resolutionText(const OptionsDocument& document) {
    const float twips = static_cast<float>(document.twipsPerPixel);
    return printedNumber(document.screenWidth) + printedNumber(document.screenHeight) +
           printedNumber(twips) + " / " + printedNumber(document.screenWidth / twips) + " * " +
           printedNumber(document.screenHeight / twips);
}

void appendPlaces(std::string& file, const OptionsDocument& document) {
    appendLine(file, "'    Windows version:    ", document.systemVersion);
    appendLine(file, "'    Screen resolution: ", resolutionText(document));
    appendLine(file, "'    Actual twips:      ",
               printedNumber(document.actualTwipsX) + " * " + printedNumber(document.actualTwipsY));
    appendLine(file, "'    Application path:   ", document.applicationPath);
    appendLine(file, "'    Documents path:     ", document.documentsPath);
    appendLine(file, "'    Current path:       ", document.currentPath);
}

std::string megabytes(std::uint64_t bytes) {
    constexpr double megabyte = 1048576;
    return toolkit::fixedText(static_cast<double>(bytes) / megabyte, 1, 0) + " MB";
}

void appendMemory(std::string& file, const OptionsDocument& document) {
    appendLine(file, "'    Physical Memory:    ", megabytes(document.memory.physicalBytes));
    appendLine(file, "'    Total Memory:       ", megabytes(document.memory.pageFileBytes));
    appendLine(file, "'    Memory Load:        ", document.memoryLoad);
    appendLine(file, "'    Curr Memory usage:  ", toolkit::groupedText(document.usage.current));
    appendLine(file, "'    Peak Memory usage:  ", toolkit::groupedText(document.usage.peak));
}

} // namespace

std::string writeOptions(const OptionsDocument& document) {
    std::string file(banner);
    appendLine(file, "'Program version: ", document.programVersion);
    file += lineEnd;
    appendSettings(file, document);
    appendLine(file, "' Environment information (technical stuff for problem solving)...", "");
    appendPrinter(file, document.printer);
    appendFacts(file, document.facts);
    appendLine(file, "'  Other:", "");
    appendPlaces(file, document);
    appendMemory(file, document);
    return file;
}

} // namespace zev
