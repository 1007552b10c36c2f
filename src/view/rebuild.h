// Making the card anew at another size, with its content.
#pragma once

namespace zev {

struct Zevlin;

/// Carries the card in memory around a new Initialize: the fields are made for one size only. Name,
/// changed flag and content come back, whatever the data folder does meanwhile; what it didn't take
/// or give is told at the end. While the program initializes only the options are written.
void RebuildScreenImage(Zevlin& form);

} // namespace zev
