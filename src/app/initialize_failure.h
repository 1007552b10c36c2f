// What a failed start-up step tells the player.
#pragma once

#include "app/file_failures.h"
#include "app/initialize_run.h"
#include "toolkit/error.h"

namespace zev {

struct Zevlin;

/// ", after step " with the step stands behind the failure.
void traceFailedInitialize(Zevlin& form, const toolkit::RunTimeError& failure, int step);

/// Runs a part of a rebuild that the program can do without; true if it didn't fail. A failure is
/// traced and noted as `what`.
template <typename Body>
bool getOver(Zevlin& form, const InitializeRun& run, std::string_view what, Body body) {
    try {
        body();
        return true;
    } catch (const std::exception&) {
        const auto failure = toolkit::currentFailure();
        traceFailedInitialize(form, failure, run.step);
        noteFileFailure(form, what, failure);
        return false;
    }
}

/// Traces the failure, offers to delete the file at fault (the options below step 600, else the
/// layout) and ends the program.
[[noreturn]] void endFailedInitialize(Zevlin& form, const toolkit::RunTimeError& failure, int step);

} // namespace zev
