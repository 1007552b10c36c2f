#include "output/printer_form.h"

#include <algorithm>

#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

constexpr const char* notApplicable = "not applicable";

bool isChosen(const std::vector<int>& codes, int row) {
    return row >= 0 && static_cast<std::size_t>(row) < codes.size();
}

/// Fills a list with names and their codes, and selects the row of the code given.
template <typename Item>
void fill(toolkit::ComboBox& box, std::vector<int>& codes, const std::vector<Item>& items,
          int chosen) {
    box.List.clear();
    box.ListIndex = -1;
    codes.clear();
    for (const Item& item : items) {
        if (item.code == chosen) box.ListIndex = static_cast<int>(codes.size());
        box.List.push_back(item.name);
        codes.push_back(item.code);
    }
    if (!items.empty()) return;
    box.List = {notApplicable};
    box.ListIndex = 0;
}

/// Nothing can be typed into the list, and the arrows do nothing in it.
void makeListOnly(toolkit::ComboBox& box) {
    box.KeyDown = [](toolkit::KeyArguments& key) { key.KeyCode = 0; };
    box.KeyPress = [](int& key) { key = 0; };
}

/// Makes the printer with this name the current one.
void choose(frmPrint& form, const std::string& name) {
    if (form.printer.DeviceName == name) return;
    form.printer = toolkit::printerNamed(name);
}

void showOrientation(frmPrint& form) {
    const bool isLandscape =
        form.printer.Orientation == static_cast<int>(toolkit::Orientation::Landscape);
    form.rbOrientation[0].Value = isLandscape;
    form.rbOrientation[1].Value = !isLandscape;
    for (toolkit::OptionButton& button : form.rbOrientation) button.Enabled = form.printer.CanTurn;
}

toolkit::Orientation chosenOrientation(const frmPrint& form) {
    if (!form.printer.CanTurn) return static_cast<toolkit::Orientation>(form.printer.Orientation);
    return form.rbOrientation[0].Value ? toolkit::Orientation::Landscape
                                       : toolkit::Orientation::Portrait;
}

} // namespace

frmPrint::frmPrint(toolkit::Printer& printerObject) : printer(printerObject) {
    form.Caption = "Printer Setup";
    cbPrinter.Label = "Printer";
    cbSize.Label = "Paper Size";
    cbSource.Label = "Paper Tray";
    rbOrientation[0].Caption = "Landscape";
    rbOrientation[1].Caption = "Portrait";
    cmdOK.Caption = "&OK";
    cmdOK.Default = true;
    cmdCancel.Caption = "&Cancel";
    cmdCancel.Cancel = true;
    for (auto* box : {&cbPrinter, &cbSize, &cbSource}) makeListOnly(*box);
    cbPrinter.Click = [this] { cbPrinter_Click(*this); };
    cmdOK.Click = [this] { cmdOK_Click(*this); };
    cmdCancel.Click = [this] { cmdCancel_Click(*this); };
    form.combos = {&cbPrinter, &cbSize, &cbSource};
    for (toolkit::OptionButton& button : rbOrientation) form.options.push_back(&button);
    form.buttons = {&cmdOK, &cmdCancel};
}

void Form_Load(frmPrint& form) {
    form.cbPrinter.List = toolkit::printerNames();
    const auto present = std::ranges::find(form.cbPrinter.List, form.printer.DeviceName);
    const bool isThere = present != form.cbPrinter.List.end();
    form.cbPrinter.ListIndex =
        isThere ? static_cast<int>(present - form.cbPrinter.List.begin()) : 0;
    cbPrinter_Click(form);
}

void cbPrinter_Click(frmPrint& form) {
    const int row = form.cbPrinter.ListIndex;
    if (row < 0) return;
    choose(form, form.cbPrinter.List.at(static_cast<std::size_t>(row)));
    showOrientation(form);
    populatePaperSize(form);
    populatePaperSource(form);
}

void populatePaperSize(frmPrint& form) {
    fill(form.cbSize, form.paperCodes, form.printer.Papers, form.printer.PaperSize);
}

void populatePaperSource(frmPrint& form) {
    fill(form.cbSource, form.binCodes, form.printer.Trays, form.printer.PaperBin);
}

void cmdOK_Click(frmPrint& form) {
    const int size = form.cbSize.ListIndex;
    const int paper = isChosen(form.paperCodes, size)
                          ? form.paperCodes[static_cast<std::size_t>(size)]
                          : form.printer.PaperSize;
    toolkit::layOutPage(form.printer, paper, chosenOrientation(form));
    const int tray = form.cbSource.ListIndex;
    if (isChosen(form.binCodes, tray))
        form.printer.PaperBin = form.binCodes[static_cast<std::size_t>(tray)];
    if (form.cbPrinter.ListIndex < 0) return toolkit::beep();
    form.form.Unloaded = true;
}

void cmdCancel_Click(frmPrint& form) { form.form.Unloaded = true; }

void showPrinterForm(Zevlin& form) {
    procedure(form, "frmPrint", [&] {
        frmPrint shown(form.CurrentPrinter);
        Form_Load(shown);
        toolkit::showModal(shown.form);
    });
}

} // namespace zev
