#include "form/printer_facts.h"

#include <utility>

#include "form/zevlin.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"

namespace zev {
namespace {

constexpr int coloredDepth = 24;

float inches(int physical, int offset, int pixelsPerInch) {
    if (pixelsPerInch == 0) return 0;
    return static_cast<float>(physical - 2 * offset) / static_cast<float>(pixelsPerInch);
}

} // namespace

void takePrinterToken(Zevlin& form) {
    // Where asking is slow there is always a printer, if only the one that makes PDF files.
    form.Myprinter.hdc = toolkit::isAskingSlow() ? 1 : toolkit::defaultPrinter().hdc;
}

void takeDefaultPrinter(Zevlin& form, int& step) {
    if (toolkit::isAskingSlow()) {
        form.PrinterPending = true;
        step = 2010;
        return;
    }
    form.CurrentPrinter = toolkit::defaultPrinter();
    if (form.CurrentPrinter.hdc == 0) return;
    step = 2010;
    form.Myprinter.Devicename = form.CurrentPrinter.DeviceName;
    readPrinterFacts(form);
}

void takePendingPrinter(Zevlin& form) {
    if (!std::exchange(form.PrinterPending, false)) return;
    form.CurrentPrinter = form.PrinterAsked.answer();
    // The options may have named a printer meanwhile.
    if (form.Myprinter.Devicename.empty())
        form.Myprinter.Devicename = form.CurrentPrinter.DeviceName;
    readPrinterFacts(form);
}

void askForPendingPrinter(Zevlin& form, const std::function<void()>& taken) {
    if (!form.PrinterPending) return;
    if (form.PrinterAsked.isAnswered()) return takePendingPrinter(form);
    form.PrinterAsked.ask([&form, taken] {
        if (!form.PrinterPending) return;
        takePendingPrinter(form);
        taken();
    });
}

void readPrinterFacts(Zevlin& form) {
    const toolkit::Printer& printer = form.CurrentPrinter;
    PrinterFacts& facts = form.Myprinter;
    facts.hdc = printer.hdc;
    facts.PixPerInchx = printer.PixelsPerInchX;
    facts.PixPerInchY = printer.PixelsPerInchY;
    facts.OffsetX = printer.PhysicalOffsetX;
    facts.OffsetY = printer.PhysicalOffsetY;
    facts.PageWidthInches =
        inches(printer.PhysicalWidth, printer.PhysicalOffsetX, printer.PixelsPerInchX);
    facts.PageHeightInches =
        inches(printer.PhysicalHeight, printer.PhysicalOffsetY, printer.PixelsPerInchY);
    facts.BitsPerPixel = printer.ColorMode == toolkit::colored ? coloredDepth : monochromeDepth;
}

PageFacts pageFactsOf(const Zevlin& form) {
    const PrinterFacts& facts = form.Myprinter;
    const toolkit::Printer& printer = form.CurrentPrinter;
    return {.widthInches = facts.PageWidthInches,
            .heightInches = facts.PageHeightInches,
            .pixelsPerInchX = facts.PixPerInchx,
            .pixelsPerInchY = facts.PixPerInchY,
            .twipsPerPixelX = printer.TwipsPerPixelX,
            .twipsPerPixelY = printer.TwipsPerPixelY,
            .scaleWidth = printer.ScaleWidth};
}

void releasePrinter(Zevlin& form) {
    form.PrinterDC.abandon();
    if (form.PrintMethod == primaryPrintMethod) form.Myprinter.hdc = 0;
}

void restoreDefaultPrinter(Zevlin& form) {
    if (form.SavedDefaultPrinter.empty()) return;
    if (toolkit::defaultPrinterName() != form.SavedDefaultPrinter)
        toolkit::setDefaultPrinter(form.SavedDefaultPrinter);
}

} // namespace zev
