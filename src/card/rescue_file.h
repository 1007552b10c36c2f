// The file in which unsaved changes wait for the next start: a head with what only the journal
// knows, and then the card as in any card file.
#pragma once

#include <string>

#include "card/card_file.h"
#include "card/file_state.h"

namespace zev {

struct RescuedCard {
    std::string name; ///< empty for an unnamed card
    FileState file;   ///< the card's own file, as it was opened or saved last
    CardDocument document;
};

/// The whole file, byte for byte.
[[nodiscard]] std::string writeRescue(const RescuedCard& card);

/// Reads such a file, or a card file, which then has no name. Failures are those of readCard.
[[nodiscard]] RescuedCard readRescue(std::string content);

} // namespace zev
