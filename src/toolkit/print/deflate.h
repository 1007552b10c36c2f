// Compression of pictures, on all processors. Internal to the toolkit's sources.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace toolkit {

/// Rows, each added by `write(row, bytes)` when its turn comes, so that they are never in memory
/// all at once. Rows may be asked for at the same time by several threads.
struct RowSource {
    int rows = 0;
    std::function<void(int row, std::vector<std::uint8_t>& bytes)> write;
};

/// The rows as one zlib stream, compressed fast rather than small.
[[nodiscard]] std::string zlibStream(const RowSource& source);

} // namespace toolkit
