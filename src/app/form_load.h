// The start of a run.
#pragma once

#include <string_view>

namespace zev {

struct Zevlin;

/// Runs once: finds the data folder, builds the card, opens the card that the command line names or
/// asks for one. A failure is told with its step and ends the program.
void Form_Load(Zevlin& form, std::string_view commandLine);

} // namespace zev
