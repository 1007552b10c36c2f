#include "toolkit/base/console.h"

#ifndef _WIN32

#include <algorithm>

#include <unistd.h>

namespace toolkit {

std::vector<std::string> commandArguments(int argumentCount, const char* const* arguments) {
    // A process may be started without even its name.
    return {arguments + std::min(1, argumentCount), arguments + argumentCount};
}

bool isErrorOnTerminal() { return isatty(STDERR_FILENO) != 0; }

void passBytesUnchanged() {
    // They always do.
}

void showUtf8OnConsole() {
    // Terminals are in UTF-8.
}

} // namespace toolkit

#endif
