// Making the card anew at another size, with its content.
#pragma once

namespace zev {

struct Zevlin;

/// Runs Initialize again, since fields are made for one size only, while the card waits in memory.
/// Its name, changed flag and content come back, whatever happens to the data folder meanwhile;
/// files that couldn't be written or read are told at the end. While the program initializes only
/// the options are written.
void RebuildScreenImage(Zevlin& form);

} // namespace zev
