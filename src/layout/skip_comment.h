// Moving a file of the program to its next data line.
#pragma once

#include <string>

#include "toolkit/base/text_input.h"

namespace zev {

/// Passes over comments and empty lines and stops before the next data line; true at the end of the
/// file. Every line read on the way, the data line too, that holds "Program version:" leaves the
/// trimmed text behind the colon in `versionSeen`, 256 characters of it at most.
bool skipComments(toolkit::TextInput& input, std::string& versionSeen);

} // namespace zev
