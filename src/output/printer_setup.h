// Choosing the printer.
#pragma once

namespace zev {

struct Zevlin;

/// Asks for printer, paper and tray and takes the printer's facts: with the system's dialog, or
/// with the program's own form for the alternate method.
void MPrintSetup_Click(Zevlin& form);

} // namespace zev
