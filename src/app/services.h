// Small services of the frame: the version, the kind of build.
#pragma once

namespace zev {

struct Zevlin;

/// Fills ProgramVersion.
void AppVersion(Zevlin& form);

/// Whether this is a delivered build: the Design menu hidden, the hooks installed, the trace kept.
[[nodiscard]] bool IsProductionEnvironment(Zevlin& form);

} // namespace zev
