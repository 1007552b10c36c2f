// What the program could not write or read for its own purposes, told in one box when the work that
// met it is done. Nothing that the player has typed depends on it.
#pragma once

#include <string_view>

#include "form/trace.h"

namespace zev {

struct Zevlin;

/// What begins the lines of the box.
constexpr std::string_view layoutFailure = "The places of the fields (Definitions.Ini)";
constexpr std::string_view optionsFailure = "The settings (ZEV.Ini)";
constexpr std::string_view copyFailure = "A temporary copy of the card ($$Tempcard.zev)";

void noteFileFailure(Zevlin& form, std::string_view what, const toolkit::RunTimeError& failure);

/// Drops what was noted of it and isn't told yet: it has succeeded since.
void forgetFileFailure(Zevlin& form, std::string_view what);

/// Shows what was noted, unless that very box was the last one and nothing has succeeded since.
void tellFileFailures(Zevlin& form);

/// Runs a body. A failure is traced with the head given, noted and not passed on; true if there was
/// none.
template <typename Body>
bool trappedAndNoted(Zevlin& form, std::string_view head, std::string_view what, Body body) {
    try {
        body();
        return true;
    } catch (const std::exception&) {
        const auto failure = toolkit::currentFailure();
        traceFailure(form, head, failure);
        noteFileFailure(form, what, failure);
        return false;
    }
}

} // namespace zev
