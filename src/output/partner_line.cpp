#include "output/partner_line.h"

#include "toolkit/base/ansi.h"

namespace zev {
namespace {

/// Joins two names; the doubled ampersand shows as one.
std::string joined(std::string_view first, std::string_view second) {
    std::string text(first);
    if (!second.empty()) text.append(" && ").append(second);
    return std::string(toolkit::trim(text));
}

} // namespace

std::string partnerCaption(const PartnerLine& line) {
    if (!line.partnerName.empty()) {
        std::string text = joined(line.partnerName, line.myName);
        if (!line.partnerNumber.empty())
            text.append(std::string(10, ' ')).append("#").append(line.partnerNumber);
        return text;
    }
    if (!line.cardName.empty()) return joined(line.cardName, line.myName);
    return std::string(line.caption);
}

} // namespace zev
