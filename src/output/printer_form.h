// The program's own form for choosing printer, paper and tray.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "toolkit/print/printer.h"
#include "toolkit/window/modal_form.h"

namespace zev {

struct Zevlin;

/// Works on the printer object itself, which remains the one chosen in the list even after Cancel.
struct frmPrint {
    explicit frmPrint(toolkit::Printer& printerObject);
    frmPrint(const frmPrint&) = delete;
    frmPrint& operator=(const frmPrint&) = delete;

    toolkit::Printer& printer;
    toolkit::ModalForm form;
    toolkit::ComboBox cbPrinter;
    toolkit::ComboBox cbSize;
    toolkit::ComboBox cbSource;
    std::array<toolkit::OptionButton, 2> rbOrientation; ///< landscape, portrait
    toolkit::CommandButton cmdOK;
    toolkit::CommandButton cmdCancel;
    std::vector<int> paperCodes; ///< for each row of cbSize
    std::vector<int> binCodes;   ///< for each row of cbSource
};

void Form_Load(frmPrint& form);
void cbPrinter_Click(frmPrint& form);
void populatePaperSize(frmPrint& form);
void populatePaperSource(frmPrint& form);
void cmdOK_Click(frmPrint& form);
void cmdCancel_Click(frmPrint& form);

/// Shows the form and waits.
void showPrinterForm(Zevlin& form);

} // namespace zev
