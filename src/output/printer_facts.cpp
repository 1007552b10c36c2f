#include "output/printer_facts.h"

#include "app/zevlin.h"
#include "toolkit/printer.h"

namespace zev {
namespace {

float inches(int physical, int offset, int pixelsPerInch) {
    if (pixelsPerInch == 0) return 0;
    return static_cast<float>(physical - 2 * offset) / static_cast<float>(pixelsPerInch);
}

} // namespace

void takeDefaultPrinter(Zevlin& form, int& step) {
    form.CurrentPrinter = toolkit::defaultPrinter();
    if (form.CurrentPrinter.hdc == 0) return;
    step = 2010;
    form.Myprinter.hdc = form.CurrentPrinter.hdc;
    form.Myprinter.Devicename = form.CurrentPrinter.DeviceName;
    readPrinterFacts(form);
}

void readPrinterFacts(Zevlin& form) {
    const toolkit::Printer& printer = form.CurrentPrinter;
    PrinterFacts& facts = form.Myprinter;
    facts.PixPerInchx = printer.PixelsPerInchX;
    facts.PixPerInchY = printer.PixelsPerInchY;
    facts.OffsetX = printer.PhysicalOffsetX;
    facts.OffsetY = printer.PhysicalOffsetY;
    facts.PageWidthInches =
        inches(printer.PhysicalWidth, printer.PhysicalOffsetX, printer.PixelsPerInchX);
    facts.PageHeightInches =
        inches(printer.PhysicalHeight, printer.PhysicalOffsetY, printer.PixelsPerInchY);
    facts.BitsPerPixel = printer.ColorMode == 2 ? 24 : printer.BitsPerPixel;
}

} // namespace zev
