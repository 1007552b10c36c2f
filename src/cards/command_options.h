// What is asked of zevlin-cards on its command line.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace zev {

enum class Command { Text, Diff, Check };

struct CommandOptions {
    Command command = Command::Check;
    std::vector<std::string> cards; ///< in UTF-8, on Linux any bytes
    std::string filesFrom;          ///< a file with more of them, "-" for the standard input
    bool nullSeparated = false;     ///< that file ends each name with a null, not with a line end
    bool json = false;
};

/// Where the command line itself is answered: help, version, or what is wrong with it.
struct CommandAnswer {
    std::string text;
    bool isFailure = false;
};

/// The arguments without the program's name.
[[nodiscard]] std::variant<CommandOptions, CommandAnswer>
readCommand(std::vector<std::string> arguments);

} // namespace zev
