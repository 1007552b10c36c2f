// The dialog for choosing printer, paper and tray: the system's own, or ours where it has none.
#pragma once

#include <functional>
#include <optional>

#include "toolkit/print/printer.h"

namespace toolkit {

/// The printer as the player has set it up, starting with this one; none on cancel. Nothing is
/// printed by it.
[[nodiscard]] std::optional<Printer> setUpOnScreen(const Printer& present);

/// For tests: answers in the player's place. An empty function gives the dialog back to the screen.
using PrinterChoice = std::function<std::optional<Printer>(const Printer& present)>;
void answerPrinterSetupWith(PrinterChoice answer);

} // namespace toolkit
