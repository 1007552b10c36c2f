// The output's share of the form's state: the printer and its facts.
#pragma once

#include <cstdint>
#include <vector>

#include "app/options_file.h"
#include "toolkit/control.h"
#include "toolkit/printer.h"

namespace zev {

/// Ways of printing.
constexpr std::int16_t alternatePrintMethod = 2;
constexpr std::int16_t primaryPrintMethod = 3;

struct OutputState {
    std::int16_t PrintMethod = primaryPrintMethod;
    PrinterFacts Myprinter;          ///< what the program keeps of the chosen printer
    toolkit::Printer CurrentPrinter; ///< the printer object
    bool Printing = false;

    toolkit::MenuItem MMono;
    toolkit::MenuItem MColor;
    toolkit::MenuItem z21;
    toolkit::MenuItem mPrintAlt;
};

} // namespace zev
