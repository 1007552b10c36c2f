// What one run of Initialize keeps for itself: runs can nest.
#pragma once

#include <array>
#include <optional>

#include "form/file_failures.h"
#include "layout/layout_file.h"
#include "toolkit/base/error.h"

namespace zev {

struct Zevlin;

/// Corrections in twips that the layout's places get on this machine: [kind][size][side].
using Corrections = std::array<std::array<std::array<float, 3>, 4>, 4>;

struct InitializeRun {
    int step = 0; ///< named when a step fails
    bool firstRun = false;
    FileOffsets fileOffsets{};
    float ratio = 1; ///< twips per pixel of this screen over the layout's
    Corrections corrections{};
};

/// Traces the failure, followed by ", after step " and the step.
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

} // namespace zev
