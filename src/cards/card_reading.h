// A card as the program reads it, with all that is wrong with its file.
#pragma once

#include <string>
#include <vector>

#include "card/card_file.h"

namespace zev {

struct CardFault {
    int line = 0; ///< from 1
    std::string what;
};

struct CardReading {
    CardDocument card; ///< without a name; its lists reach to the largest field number in the file
    std::vector<CardFault> faults; ///< in the order of the file
    /// Whether the program shows all of it. Faults that it passes over leave a card whole.
    bool isWhole = false;
};

/// Fields as the program takes them: a field told twice is what was told last, and field 0 is none.
[[nodiscard]] CardReading readForgivingly(const std::string& content);

} // namespace zev
