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
    /// The folder with the sample cards; asked for only where Zevlin's folder has no such card.
    std::function<std::filesystem::path()> installedFolder{};
    /// The program that makes pages and images as a worker; empty for this one.
    std::filesystem::path worker{};
    /// Whether somebody sees at once what goes to `err`.
    bool isErrShown = false;
};

namespace exit_status {
constexpr int success = 0;
constexpr int someFailed = 1;
constexpr int trouble = 2;   ///< nothing was done, or what was found couldn't be told
constexpr int stopped = 128; ///< and the number of the signal that stopped it
} // namespace exit_status

/// Ends a command that can't do anything, with exit status 2.
struct Trouble {
    std::string message;
};

using TakeFile = std::function<void(const std::filesystem::path& file)>;
using Complain = std::function<void(const std::string& message)>;

enum class FoldersAsked { Taken, Refused };

using TakeReading =
    std::function<void(const std::filesystem::path& file, const CardReading& reading)>;

/// Finds the files that the command line and its list mean, one after the other, and complains of
/// those that it can't find. Trouble where the list can't be read.
void forEachFile(const CommandOptions& options, const Surroundings& surroundings,
                 FoldersAsked folders, const TakeFile& take, const Complain& complain);

/// Reads the cards of the command line and of its list one after the other. One that can't be found
/// or read as a file is told, and the rest goes on. False if there was such a one. Trouble where
/// the list of cards can't be read.
[[nodiscard]] bool forEachCard(const CommandOptions& options, const Surroundings& surroundings,
                               FoldersAsked folders, const TakeReading& take);

/// A line for each fault: file, line of the file, what is wrong there.
void tellFaults(std::ostream& err, const std::filesystem::path& file, const CardReading& reading);

} // namespace zev
