// The names line of the partner's card.
#pragma once

#include <string>
#include <string_view>

namespace zev {

struct PartnerLine {
    std::string_view partnerName{};
    std::string_view partnerNumber{};
    std::string_view myName{};
    std::string_view cardName{};
    std::string_view caption{}; ///< of the card as it is
};

/// The line with the partner's name first, or the card's name where the partner has none; the
/// present caption where neither has one.
[[nodiscard]] std::string partnerCaption(const PartnerLine& line);

} // namespace zev
