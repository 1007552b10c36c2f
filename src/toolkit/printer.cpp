#include "toolkit/printer.h"

#include <algorithm>
#include <utility>

namespace toolkit {
namespace {

struct PrinterOverrides {
    std::vector<Printer> printers;
    bool noPrinter = false;
};

PrinterOverrides& overrides() {
    static PrinterOverrides current;
    return current;
}

Printer printToPdf() {
    constexpr int dotsPerInch = 600;
    constexpr float twipsPerInch = 1440;
    constexpr float letterWidth = 8.5F;
    constexpr float letterHeight = 11;
    Printer printer;
    printer.DeviceName = "Print to PDF";
    printer.hdc = 1;
    printer.Width = printer.ScaleWidth = letterWidth * twipsPerInch;
    printer.Height = printer.ScaleHeight = letterHeight * twipsPerInch;
    printer.TwipsPerPixelX = twipsPerInch / dotsPerInch;
    printer.PixelsPerInchX = printer.PixelsPerInchY = dotsPerInch;
    printer.PhysicalWidth = static_cast<int>(letterWidth * dotsPerInch);
    printer.PhysicalHeight = static_cast<int>(letterHeight * dotsPerInch);
    return printer;
}

} // namespace

std::vector<Printer> installedPrinters() {
    std::vector<Printer> printers = overrides().printers;
    const Printer last = printToPdf();
    if (std::ranges::find(printers, last.DeviceName, &Printer::DeviceName) == printers.end())
        printers.push_back(last);
    return printers;
}

Printer defaultPrinter() {
    Printer printer = installedPrinters().front();
    if (overrides().noPrinter) printer.hdc = 0;
    return printer;
}

void overridePrinters(std::vector<Printer> printers) { overrides().printers = std::move(printers); }

void overrideNoPrinter(bool none) { overrides().noPrinter = none; }

} // namespace toolkit
