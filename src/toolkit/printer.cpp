#include "toolkit/printer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "toolkit/error.h"
#include "toolkit/system_printers.h"

namespace toolkit {
namespace {

struct PrinterOverrides {
    std::vector<Printer> printers;
    bool noPrinter = false;
    std::function<Printer()> defaultQuestion;
};

PrinterOverrides& overrides() {
    static PrinterOverrides current;
    return current;
}

constexpr float twipsPerInch = 1440;

Paper paper(int code, const char* name, float width, float height) {
    return {.code = code,
            .name = name,
            .keyword = name,
            .width = width,
            .height = height,
            .sideMargin = 0,
            .endMargin = 0};
}

Printer printToPdf() {
    constexpr int dotsPerInch = 600;
    Printer printer;
    printer.DeviceName = printToPdfName;
    printer.hdc = 1;
    printer.PixelsPerInchX = printer.PixelsPerInchY = dotsPerInch;
    printer.Papers = {paper(1, "Letter", 8.5F, 11), paper(5, "Legal", 8.5F, 14),
                      paper(9, "A4", 8.27F, 11.69F)};
    layOutPage(printer, 1, Orientation::Portrait);
    return printer;
}

int pixels(float inches, int perInch) {
    return static_cast<int>(std::lround(inches * static_cast<float>(perInch)));
}

float twips(int pixels, int perInch) {
    return static_cast<float>(pixels) * twipsPerInch / static_cast<float>(perInch);
}

const Printer* overridden(std::string_view name) {
    const auto& printers = overrides().printers;
    const auto found = std::ranges::find(printers, name, &Printer::DeviceName);
    return found == printers.end() ? nullptr : &*found;
}

} // namespace

void layOutPage(Printer& printer, int paperSize, Orientation orientation) {
    const auto found = std::ranges::find(printer.Papers, paperSize, &Paper::code);
    if (found == printer.Papers.end()) return;
    printer.PaperSize = paperSize;
    printer.Orientation = static_cast<int>(orientation);
    const int x = printer.PixelsPerInchX;
    const int y = printer.PixelsPerInchY;
    std::array size{found->width, found->height};
    std::array margin{found->sideMargin, found->endMargin};
    if (orientation == Orientation::Landscape) {
        std::swap(size[0], size[1]);
        std::swap(margin[0], margin[1]);
    }
    printer.PhysicalWidth = pixels(size[0], x);
    printer.PhysicalHeight = pixels(size[1], y);
    printer.PhysicalOffsetX = pixels(margin[0], x);
    printer.PhysicalOffsetY = pixels(margin[1], y);
    printer.Width = twips(printer.PhysicalWidth, x);
    printer.Height = twips(printer.PhysicalHeight, y);
    printer.ScaleWidth = twips(printer.PhysicalWidth - 2 * printer.PhysicalOffsetX, x);
    printer.ScaleHeight = twips(printer.PhysicalHeight - 2 * printer.PhysicalOffsetY, y);
    printer.TwipsPerPixelX = twips(1, x);
    printer.TwipsPerPixelY = twips(1, y);
}

std::vector<std::string> printerNames() {
    std::vector<std::string> names;
    if (overrides().printers.empty()) names = systemPrinterNames();
    for (const Printer& printer : overrides().printers) names.push_back(printer.DeviceName);
    if (std::ranges::find(names, printToPdfName) == names.end()) names.emplace_back(printToPdfName);
    return names;
}

Printer printerNamed(std::string_view name) {
    if (const Printer* printer = overridden(name)) return *printer;
    if (name == printToPdfName) return printToPdf();
    return overrides().printers.empty() ? systemPrinter(name) : Printer{};
}

Printer defaultPrinter() {
    Printer printer = printerNamed(printerNames().front());
    if (printer.hdc == 0) printer = printToPdf();
    if (overrides().noPrinter) printer.hdc = 0;
    return printer;
}

std::string defaultPrinterName() {
    const auto& printers = overrides().printers;
    return printers.empty() ? systemDefaultPrinterName() : printers.front().DeviceName;
}

void setDefaultPrinter(std::string_view name) {
    auto& printers = overrides().printers;
    if (printers.empty()) return setSystemDefaultPrinter(name);
    const auto found = std::ranges::find(printers, name, &Printer::DeviceName);
    if (found == printers.end()) throw RunTimeError(Failure::PrinterError);
    std::rotate(printers.begin(), found, found + 1);
}

std::function<Printer()> defaultPrinterQuestion() {
    if (overrides().defaultQuestion) return overrides().defaultQuestion;
    return [] {
        const auto names = systemPrinterNames();
        const Printer printer = names.empty() ? Printer{} : systemPrinter(names.front());
        return printer.hdc == 0 ? printToPdf() : printer;
    };
}

bool isAskingSlow() { return overrides().printers.empty() && !overrides().noPrinter; }

void overridePrinters(std::vector<Printer> printers) { overrides().printers = std::move(printers); }

void overrideDefaultPrinterQuestion(std::function<Printer()> question) {
    overrides().defaultQuestion = std::move(question);
}

void overrideNoPrinter(bool none) { overrides().noPrinter = none; }

} // namespace toolkit
