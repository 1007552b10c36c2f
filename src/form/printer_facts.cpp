#include "form/printer_facts.h"

#include <string>
#include <utility>

#include "form/zevlin.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

constexpr int coloredDepth = 24;

/// The player sees that the program waits.
class WaitPointer {
  public:
    explicit WaitPointer(Zevlin& form)
        : form_(form), before_(std::exchange(form.MousePointer, toolkit::MousePointer::Hourglass)) {
    }
    ~WaitPointer() { form_.MousePointer = before_; }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;

  private:
    Zevlin& form_;
    toolkit::MousePointer before_;
};

/// The window goes on painting.
void waitForAnswer(Zevlin& form, std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds slice{20};
    const WaitPointer pointer(form);
    std::chrono::milliseconds waited{0};
    while (!form.PrinterAsked.isAnswered() && waited < patience) {
        toolkit::wait(static_cast<int>(slice.count()));
        waited += slice;
    }
}

/// The printer that the player has chosen for the alternate method in an earlier run.
std::string rememberedPrinter(const Zevlin& form) {
    return form.mPrintAlt.Checked ? form.Myprinter.Devicename : std::string();
}

/// Takes the answer, which must be there.
void takeAnswer(Zevlin& form) {
    form.PrinterPending = false;
    form.CurrentPrinter = form.PrinterAsked.answer();
    if (form.CurrentPrinter.DeviceName == rememberedPrinter(form)) takeRememberedTray(form);
    // The options may have named a printer meanwhile.
    if (form.Myprinter.Devicename.empty())
        form.Myprinter.Devicename = form.CurrentPrinter.DeviceName;
    readPrinterFacts(form);
}

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
    takePendingPrinter(form, std::chrono::milliseconds::max());
}

void takePendingPrinter(Zevlin& form, std::chrono::milliseconds patience) {
    if (!form.PrinterPending) return;
    // Who waits takes the answer, and any failure in it: it is no event of its own then.
    form.PrinterAsked.ask(rememberedPrinter(form), [] {});
    if (!form.PrinterAsked.isAnswered()) waitForAnswer(form, patience);
    if (form.PrinterAsked.isAnswered()) takeAnswer(form);
}

void askForPendingPrinter(Zevlin& form, const std::function<void()>& taken) {
    if (!form.PrinterPending) return;
    if (form.PrinterAsked.isAnswered()) return takeAnswer(form);
    form.PrinterAsked.ask(rememberedPrinter(form), [&form, taken] {
        if (!form.PrinterPending) return;
        takeAnswer(form);
        taken();
    });
}

void takeRememberedTray(Zevlin& form) {
    if (form.Myprinter.PaperBin <= 0) return;
    form.CurrentPrinter.PaperBin = form.Myprinter.PaperBin;
    toolkit::requestColor(form.CurrentPrinter);
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
