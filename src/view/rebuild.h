// Making the card anew at another size, with its content.
#pragma once

namespace zev {

struct Zevlin;

/// Carries the card through a temporary file around a new Initialize: the fields are made for one
/// size only. Name, changed flag and content come back; while the program initializes only the
/// options are written.
void RebuildScreenImage(Zevlin& form);

} // namespace zev
