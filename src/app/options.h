// Reading and writing the options: each lives in the control or field that uses it.
#pragma once

#include <filesystem>

namespace zev {

struct Zevlin;

constexpr const char* optionsFileName = "ZEV.Ini";

/// Applies the options file line by line. Failures are the reader's; unknown keys are passed over.
void readOptions(Zevlin& form, const std::filesystem::path& file);

/// Rewrites the options file from the present state. A failure is traced only.
void IniWrite(Zevlin& form);

} // namespace zev
