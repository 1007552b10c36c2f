// What reaches the form between its load and its unload only.
#pragma once

namespace zev {

struct Zevlin;

/// The wheel moves the card from now on.
void hookWheel(Zevlin& form);
/// The wheel does nothing any more. Nothing happens if it did nothing before.
void unhookWheel(Zevlin& form);

} // namespace zev
