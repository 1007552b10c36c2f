// Small services of the frame: the version, the kind of build, facts for trouble reports.
#pragma once

#include <filesystem>
#include <string>

namespace zev {

struct Zevlin;

/// Fills ProgramVersion.
void AppVersion(Zevlin& form);

/// The system's version as trouble reports tell it; empty on failure.
[[nodiscard]] std::string WinVer(Zevlin& form);

/// Whether this is a delivered build: the Design menu hidden, the hooks installed, the trace kept.
[[nodiscard]] bool IsProductionEnvironment(Zevlin& form);

/// The folder that relative names mean: the data folder, or where it can't be used the process's.
[[nodiscard]] std::filesystem::path currentFolder(const Zevlin& form);

} // namespace zev
