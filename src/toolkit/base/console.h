// A program that is started from a command line.
#pragma once

#include <string>
#include <vector>

namespace toolkit {

/// What stands behind the program's name, in UTF-8; on Linux the bytes as they are. On Windows the
/// process's own command line counts, as what main gets there has lost letters.
[[nodiscard]] std::vector<std::string> commandArguments(int argumentCount,
                                                        const char* const* arguments);

/// Whether what is written to the standard error is shown on a terminal.
[[nodiscard]] bool isErrorOnTerminal();

/// Bytes on the standard input and output stay as they are, as another program wants them.
void passBytesUnchanged();

/// Lets a console show what is written to it in UTF-8.
void showUtf8OnConsole();

} // namespace toolkit
