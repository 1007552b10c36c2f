// What tests put in the place of the process's surroundings.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace toolkit {

/// Settings for tests, in force until changed.
struct ProgramOverrides {
    std::filesystem::path programFolder{};   ///< empty: the real one
    std::filesystem::path documentsFolder{}; ///< empty: the real one, unless noDocuments
    std::filesystem::path stateFolder{};     ///< empty: the real one
    bool noDocuments = false;
    bool throwAtEnd = false;
    bool shortWaits = false;                   ///< wait() is over after one look at the events
    std::function<void(std::string)> launch{}; ///< gets what would be opened or selected
    std::function<void()> beep{};              ///< instead of the sound
    /// Sees each short wait, with the time that was asked for, once the events have run.
    std::function<void(int milliseconds)> duringWait{};
    /// Acts in the player's place while the program waits for them.
    std::function<void()> player{};
};
void overrideProgram(ProgramOverrides overrides);
/// The settings in force.
[[nodiscard]] const ProgramOverrides& programOverrides();

} // namespace toolkit
