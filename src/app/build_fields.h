// From the layout file to one control per field.
#pragma once

namespace zev {

struct Zevlin;
struct InitializeRun;

/// Finds or copies the layout, reads it and makes the fields over the card.
void buildFields(Zevlin& form, InitializeRun& run);

} // namespace zev
