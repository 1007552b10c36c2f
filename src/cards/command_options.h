// What is asked of zevlin-cards on its command line.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace zev {

enum class Command { Text, Diff, Check, Pdf, Image };

/// Whose card a page is: each player has one, with their own name first.
enum class CardOwner { Player, Partner, Both };

struct CommandOptions {
    Command command = Command::Check;
    std::vector<std::string> cards; ///< in UTF-8, on Linux any bytes
    std::string filesFrom;          ///< a file with more of them, "-" for the standard input
    bool nullSeparated = false;     ///< that file ends each name with a null, not with a line end
    bool json = false;

    // Of the commands that make files.
    std::string outputFolder; ///< empty for the current one
    std::string layout;       ///< a file; empty for the layout of Zevlin's folder
    bool stamp = false;       ///< date and time in the time stamp
    bool newer = false;       ///< files that are up to date stay
    bool quiet = false;
    int workers = 0; ///< 0 for as many as there are processors
    // Of pages.
    CardOwner owner = CardOwner::Player;
    std::string paper; ///< letter or a4; empty for the usual one
    bool black = false;
    std::string together; ///< the file that all pages go into
    // Of images.
    std::string imageType = "png"; ///< png, gif, jpg or bmp
    int width = 0;                 ///< pixels; 0 for those of an export
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
