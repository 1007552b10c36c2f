// The printers that there are.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/print/printer.h"

namespace toolkit {

/// Names of the installed printers, asked for anew: the default first, "Print to PDF" last.
[[nodiscard]] std::vector<std::string> printerNames();

/// The facts of a printer, asked for anew. One that isn't there has a hdc of 0.
[[nodiscard]] Printer printerNamed(std::string_view name);

/// The system's default printer, or "Print to PDF".
[[nodiscard]] Printer defaultPrinter();

/// The name of the system's default printer; empty where it has none.
[[nodiscard]] std::string defaultPrinterName();

/// Makes an installed printer the default of this player's programs. Failure 482.
void setDefaultPrinter(std::string_view name);

/// What asks the system, in whatever thread, for the printer with this name, or for its default one
/// where there is none so called.
[[nodiscard]] std::function<Printer()> printerQuestion(std::string name);

/// Whether asking for a printer may take long, so that it is better put off.
[[nodiscard]] bool isAskingSlow();

/// For tests: the printers that the system has; an empty list gives back the real ones.
void overridePrinters(std::vector<Printer> printers);
/// For tests: what answers in the system's place when it is asked for a printer; none gives back
/// the system.
using PrinterAnswer = std::function<Printer(const std::string& name)>;
void overridePrinterQuestion(PrinterAnswer answer);
/// For tests: the player's place, as in "de_DE", whose paper "Print to PDF" takes; none gives back
/// the one that the system tells.
void overridePlace(std::string locale);
/// For tests: a machine where even the default printer has no device context.
void overrideNoPrinter(bool none);

} // namespace toolkit
