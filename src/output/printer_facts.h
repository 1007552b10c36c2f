// What the program knows of the printer.
#pragma once

namespace zev {

struct Zevlin;

/// Takes the default printer's handle, name and facts; without a device context nothing is taken.
/// `step` is the start-up's step counter.
void takeDefaultPrinter(Zevlin& form, int& step);

/// Computes the facts of the printer object.
void readPrinterFacts(Zevlin& form);

} // namespace zev
