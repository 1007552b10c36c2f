#include "toolkit/base/program_overrides.h"

#include <utility>

namespace toolkit {
namespace {

ProgramOverrides& current() {
    static ProgramOverrides overrides;
    return overrides;
}

} // namespace

const ProgramOverrides& programOverrides() { return current(); }

void overrideProgram(ProgramOverrides overrides) { current() = std::move(overrides); }

} // namespace toolkit
