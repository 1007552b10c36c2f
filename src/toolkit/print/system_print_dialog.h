// The dialog in which the player chooses a printer. Internal to the toolkit's sources.
#pragma once

#include <optional>

#include "toolkit/print/printer.h"

namespace toolkit {

/// Asks in the system's own dialog for that, or where it has none in a form of ours, beginning with
/// this printer; none on cancel.
[[nodiscard]] std::optional<Printer> askForPrinter(const Printer& present);

} // namespace toolkit
