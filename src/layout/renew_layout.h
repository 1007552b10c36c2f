// A layout made for the card before takes the installed one's place.
#pragma once

namespace zev {

struct Zevlin;

/// Puts the installed layout in the place of an untouched one of 2.0.0, and keeps that as
/// Definitions.old. For a changed one it asks first, at the first start with the present card only.
/// True if it has asked. A failure is traced and leaves the layout that is there.
bool renewLayout(Zevlin& form);

} // namespace zev
