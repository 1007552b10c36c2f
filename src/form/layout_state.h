// The layout's share of the form's state: measures of the fonts and what the layout said of fields.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "layout/tab_table.h"
#include "toolkit/base/color.h"

namespace zev {

/// Ink offsets in twips: [kind 1..3][size 1..3][side 1..2], cell 0 unused.
using InkOffsets = std::array<std::array<std::array<float, 3>, 4>, 4>;

struct LayoutState {
    std::int16_t OriginalTwips = 0; ///< twips per pixel at which the layout was written
    float CardScale = 0;            ///< the card's width over its design width
    float MarkScale = 0;
    float TextScale = 0;
    InkOffsets FontOffsets{};
    /// Of circles: [size 1..3][right, top], twips; cell 0 unused.
    std::array<std::array<float, 3>, 4> CircleAdjust{};

    toolkit::Color ColorBlack = 0;
    toolkit::Color ColorRed = 0;
    toolkit::Color ColorBlue = 0;
    std::vector<toolkit::Color> MarkDefaultColors; ///< as the layout gave them, by field number
    std::vector<toolkit::Color> TextDefaultColors;
    std::vector<std::int16_t> MarkSizes; ///< 1 small, 2 medium, 3 large
    std::vector<std::int16_t> TextSizes;
    zev::TabTable TabTable;

    /// The layout file's content as it was read or written last. A rebuild makes the fields from it
    /// where the file can't be read.
    std::string LayoutInMemory;
    /// What LayoutInMemory was before the check-point in force; none without a check-point.
    std::optional<std::string> LayoutSetAside;
    /// The player's layout file still bears the name under which it was set aside: a check-point is
    /// in force, or putting the file back failed.
    bool LayoutFileAside = false;

    float SavedLeft = 0; ///< the card's place before a zoom, twips
    float SavedTop = 0;
    float SavedWidth = 0;
};

/// Kinds of characters whose ink is measured.
namespace ink_kind {
constexpr int check = 1;
constexpr int circle = 2;
constexpr int text = 3;
} // namespace ink_kind

constexpr int inkLeft = 1;
constexpr int inkBottom = 2;

} // namespace zev
