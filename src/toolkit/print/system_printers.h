// The printers of the system's print service. Internal to the toolkit's sources.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/base/error.h"
#include "toolkit/print/printer.h"

namespace toolkit {

/// The default printer first; empty where there is no print service.
[[nodiscard]] std::vector<std::string> systemPrinterNames();

/// The facts of a printer of the print service; a hdc of 0 where it isn't there.
[[nodiscard]] Printer systemPrinter(std::string_view name);

/// Empty where the player has no default printer.
[[nodiscard]] std::string systemDefaultPrinterName();

/// Makes it the player's default; failure 482.
void setSystemDefaultPrinter(std::string_view name);

} // namespace toolkit
