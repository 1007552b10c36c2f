// Reading and writing the options: each lives in the control or field that uses it.
#pragma once

#include <string>

namespace zev {

struct Zevlin;

constexpr const char* optionsFileName = "ZEV.Ini";

/// Applies an options file's content line by line; unknown keys are passed over.
void readOptions(Zevlin& form, std::string content);

/// Rewrites the options file from the present state. A failure is traced only. Where the printer
/// isn't known yet, the file is written again when it is.
void IniWrite(Zevlin& form);

/// At the program's end: what IniWrite couldn't tell yet of the printer.
void completeOptions(Zevlin& form);

} // namespace zev
