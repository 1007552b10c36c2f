// The description of the card as a tree of parts.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "card_tool/item.h"

namespace card_tool {

enum class NodeKind {
    Panel,   ///< one half of the sheet
    Frame,   ///< parts below each other with a line around them
    Stack,   ///< parts below each other
    Columns, ///< stacks beside each other
    Grid,    ///< rows that share the places of their cells
    Row,     ///< words and fields on one line
    Bar,     ///< a row printed white on black
    Head,    ///< a row of bold words, small ones in its further cells
    Caption, ///< a row of small words
    Space,   ///< paper of a given height
    Pitch,   ///< the height of the rows that follow in the same stack
};

/// One part of the card as described, with the parts inside it.
struct Node {
    NodeKind kind = NodeKind::Row;
    int line = 0;
    /// Column widths in design pixels, 0 for an even share of the rest; or the one measure of a
    /// Space or Pitch.
    std::vector<double> measures{};
    std::vector<Cell> cells{};
    std::vector<Node> parts{};
};

struct Description {
    std::string file;
    /// The panels in the order of the TAB walk: right, then left.
    std::vector<Node> panels;
};

/// Reads a description. Throws Failure with file and line when it is malformed.
[[nodiscard]] Description readDescription(const std::filesystem::path& path);

} // namespace card_tool
