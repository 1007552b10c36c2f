// From the layout file to one control per field.
#pragma once

namespace zev {

struct CardDocument;
struct Zevlin;
struct InitializeRun;

/// Finds or copies the layout, reads it and makes the fields over the card.
void buildFields(Zevlin& form, InitializeRun& run);

/// Whether there is a field for everything that the document fills in.
[[nodiscard]] bool hasRoomFor(const Zevlin& form, const CardDocument& document);

} // namespace zev
