#include "cards/check_cards.h"

#include <ostream>

namespace zev {

int checkCards(const CommandOptions& options, const Surroundings& surroundings) {
    bool isFaultless = true;
    const auto check = [&](const std::filesystem::path& file, const CardReading& reading) {
        tellFaults(surroundings.err, file, reading);
        isFaultless = isFaultless && reading.faults.empty();
    };
    const bool areRead = forEachCard(options, surroundings, FoldersAsked::Taken, check);
    return areRead && isFaultless ? exit_status::success : exit_status::someFailed;
}

} // namespace zev
