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

/// What asks the system for its default printer, in whatever thread.
[[nodiscard]] std::function<Printer()> defaultPrinterQuestion();

/// Whether asking for the default printer may take long, so that it is better put off.
[[nodiscard]] bool isAskingSlow();

/// For tests: the printers that the system has; an empty list gives back the real ones.
void overridePrinters(std::vector<Printer> printers);
/// For tests: what answers for the system's default printer; none gives back the system.
void overrideDefaultPrinterQuestion(std::function<Printer()> question);
/// For tests: a machine where even the default printer has no device context.
void overrideNoPrinter(bool none);

} // namespace toolkit
