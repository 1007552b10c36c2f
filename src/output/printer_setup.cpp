#include "output/printer_setup.h"

#include <optional>
#include <string>

#include "form/options.h"
#include "form/printer_facts.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "output/printer_form.h"
#include "toolkit/base/number_text.h"
#include "toolkit/print/print_dialog.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

void takeFacts(Zevlin& form) {
    readPrinterFacts(form);
    form.Myprinter.Devicename = "User selected";
    if (!form.Initializing) IniWrite(form);
}

void showWaitText(Zevlin& form) {
    toolkit::TextBox& text = form.PleaseWait;
    text.Text = "Finding Printers...";
    text.Width = toolkit::textWidth(text.Font, text.Text) * 2;
    text.Height = toolkit::textHeight(text.Font) * 2;
    text.Move((form.ScaleWidth() - text.Width) / 2, (form.ScaleHeight() - text.Height) / 2);
    text.Visible = true;
    toolkit::doEvents();
}

void hideWaitText(Zevlin& form) {
    form.PleaseWait.Visible = false;
    toolkit::doEvents();
}

/// The system's dialog may change the default printer, which is put back at the program's end. What
/// another program changes at other times isn't: so the name is kept only if the dialog has changed
/// it.
std::optional<toolkit::Printer> askForPrinter(Zevlin& form) {
    const std::string before = toolkit::defaultPrinterName();
    form.MousePointer = toolkit::MousePointer::Default;
    auto chosen = toolkit::setUpOnScreen(form.CurrentPrinter);
    const bool isChanged = toolkit::defaultPrinterName() != before;
    if (isChanged && form.SavedDefaultPrinter.empty()) form.SavedDefaultPrinter = before;
    return chosen;
}

void setUpPrimary(Zevlin& form) {
    form.MousePointer = toolkit::MousePointer::Hourglass;
    showWaitText(form);
    takePendingPrinter(form);
    const auto chosen = askForPrinter(form);
    hideWaitText(form);
    if (!chosen) return;
    form.CurrentPrinter = *chosen;
    takeFacts(form);
}

void setUpAlternate(Zevlin& form) {
    takePendingPrinter(form);
    showPrinterForm(form);
    form.Myprinter.PaperBin = form.CurrentPrinter.PaperBin;
    takeFacts(form);
}

} // namespace

void MPrintSetup_Click(Zevlin& form) {
    if (form.Printing) return;
    Traceit(form, "MPrintSetup_Click, Method=" + toolkit::numberText(form.PrintMethod));
    trapped(form, "Error in MPrintSetup_Click: #", [&] {
        if (form.PrintMethod == alternatePrintMethod)
            setUpAlternate(form);
        else
            setUpPrimary(form);
    });
    form.MousePointer = toolkit::MousePointer::Default;
    form.PleaseWait.Visible = false;
}

} // namespace zev
