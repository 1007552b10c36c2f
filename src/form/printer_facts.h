// What the program knows of the printer.
#pragma once

#include <chrono>
#include <functional>

#include "output/printed_size.h"

namespace zev {

struct Zevlin;

/// BitsPerPixel of a printer without colours: with less, the job would leave its colours to it.
constexpr int monochromeDepth = 8;

/// Before anything else is known: whether there is a printer at all.
void takePrinterToken(Zevlin& form);

/// Takes the default printer's handle, name and facts; without a device context nothing is taken.
/// `step` is the start-up's step counter. Where asking the system may take long, the facts are put
/// off until something needs them.
void takeDefaultPrinter(Zevlin& form, int& step);

/// Takes the facts that were put off, if any, and waits for them if need be, with the hourglass: as
/// long as it takes, or no longer than told. A print service may be silent for minutes.
void takePendingPrinter(Zevlin& form);
void takePendingPrinter(Zevlin& form, std::chrono::milliseconds patience);

/// Takes the facts that were put off, if they have arrived. Else it asks for them and returns;
/// `taken` runs once they have arrived and were taken.
void askForPendingPrinter(Zevlin& form, const std::function<void()>& taken);

/// Sets the tray that was chosen with the remembered printer, if any, and asks it for colour then.
void takeRememberedTray(Zevlin& form);

/// Takes the printer object's handle and computes its facts.
void readPrinterFacts(Zevlin& form);

[[nodiscard]] PageFacts pageFactsOf(const Zevlin& form);

/// At the program's end: no document stays open, and the primary method's printer is let go.
void releasePrinter(Zevlin& form);

/// At the program's end: the system's default printer, where the set-up has changed it.
void restoreDefaultPrinter(Zevlin& form);

} // namespace zev
