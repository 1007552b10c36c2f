// Painting the fields: in the layout's own colours, or one for all.
#pragma once

namespace zev {

struct Zevlin;

/// Paints all fields in the present scheme; the fields' own colours stay remembered.
void SetGlobalColors(Zevlin& form);

/// Remembers each field's present colour as its own.
void KeepFieldColors(Zevlin& form);

} // namespace zev
