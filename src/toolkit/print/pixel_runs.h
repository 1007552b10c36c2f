// Pixels on their way into a page file, with the paper between the ink as runs.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace toolkit {

/// Adds a row of pixels, three bytes each, in the run-length coding of page files. A card is mostly
/// paper, and what compresses it afterwards then has a quarter of the bytes to look at.
void appendPixelRuns(std::span<const std::uint32_t> pixels, std::vector<std::uint8_t>& bytes);

/// Ends the coding behind the last row.
constexpr std::uint8_t endOfPixelRuns = 128;

} // namespace toolkit
