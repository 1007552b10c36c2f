// What stands on a row of the described card.
#pragma once

#include <string>
#include <vector>

#include "card_tool/ink.h"

namespace card_tool {

enum class Weight { Regular, Bold };
enum class ItemKind { Words, Box, Circle, Area, Fill };
enum class AreaSize { Small = 1, Large = 3 };

/// One thing that stands on a row.
struct Item {
    ItemKind kind = ItemKind::Words;
    Ink ink = Ink::Black;
    Weight weight = Weight::Regular;
    /// Printed words, or the letter inside a circle; suit signs are the characters U+2660 to
    /// U+2666.
    std::u32string text;
    /// The field's name, empty for words.
    std::string id;
    /// The width of a text area in design pixels; 0 stretches to what the row leaves.
    double width = 0;
    AreaSize areaSize = AreaSize::Small;
    /// Whether a blank stands between this item and the one before it.
    bool blankBefore = false;
};

enum class CellAlign { Left, Centre };
/// Whether a cell's place is its own or makes the next cell wider.
enum class CellPlace { Own, LentToNext };

/// One cell of a row: the items between two bars "|".
struct Cell {
    CellAlign align = CellAlign::Left;
    CellPlace place = CellPlace::Own;
    std::vector<Item> items;
};

/// Reads the items of one row. Throws Failure, without a place, when the row is malformed.
[[nodiscard]] std::vector<Cell> readCells(const std::string& utf8);

} // namespace card_tool
