// Files that are built into the program.
#pragma once

#include <cstddef>
#include <span>

namespace toolkit {

/// The bytes of a file built into the program; an unknown name is failure 53.
[[nodiscard]] std::span<const std::byte> embeddedFile(const char* name);

} // namespace toolkit
