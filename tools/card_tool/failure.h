// What stops the tool.
#pragma once

#include <stdexcept>
#include <string>

namespace card_tool {

/// What stops the tool: a description that can't be read or set, or a file that can't be written.
class Failure : public std::runtime_error {
  public:
    explicit Failure(const std::string& message) : std::runtime_error(message) {}
    Failure(const std::string& file, int line, const std::string& message)
        : std::runtime_error(file + ":" + std::to_string(line) + ": " + message) {}
};

} // namespace card_tool
