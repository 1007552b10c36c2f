// Where a command reads and tells, and how it ends.
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>

#include "cards/card_reading.h"
#include "cards/command_options.h"

namespace zev {

struct Surroundings {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    /// Zevlin's folder; asked for only where a name is no file.
    std::function<std::filesystem::path()> dataFolder;
};

namespace exit_status {
constexpr int success = 0;
constexpr int someFailed = 1;
constexpr int trouble = 2; ///< nothing was done, or what was found couldn't be told
} // namespace exit_status

/// Ends a command that can't do anything, with exit status 2.
struct Trouble {
    std::string message;
};

enum class FoldersAsked { Taken, Refused };

using TakeReading =
    std::function<void(const std::filesystem::path& file, const CardReading& reading)>;

/// Reads the cards of the command line and of its list one after the other. One that can't be found
/// or read as a file is told, and the rest goes on. False if there was such a one. Trouble where
/// the list of cards can't be read.
[[nodiscard]] bool forEachCard(const CommandOptions& options, const Surroundings& surroundings,
                               FoldersAsked folders, const TakeReading& take);

/// A line for each fault: file, line of the file, what is wrong there.
void tellFaults(std::ostream& err, const std::filesystem::path& file, const CardReading& reading);

} // namespace zev
