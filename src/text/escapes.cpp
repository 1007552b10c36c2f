#include "text/escapes.h"

#include <algorithm>
#include <utility>

#include "toolkit/base/ansi.h"

namespace zev {

void AmpAdd(std::string& text) {
    std::string doubled;
    doubled.reserve(text.size() + text.size() / 4);
    for (std::size_t i = 0; i < text.size(); ++i) {
        doubled += text[i];
        if (text[i] != '&') continue;
        doubled += '&';
        if (i + 1 < text.size() && text[i + 1] == '&') ++i;
    }
    text = std::move(doubled);
}

void AmpRem(std::string& text) {
    const auto bothAmpersands = [](char left, char right) { return left == '&' && right == '&'; };
    text.erase(std::unique(text.begin(), text.end(), bothAmpersands), text.end());
}

BlankedText blankEscapes(std::string_view raw) {
    BlankedText blanked;
    std::size_t copied = 0;
    std::size_t caret = raw.find('^');
    while (caret != std::string_view::npos) {
        const std::string_view before = raw.substr(copied, caret - copied);
        blanked.caption.append(before).append(blankedEscape);
        blanked.scanBuffer.append(before).append(1, '^');
        if (caret + 1 < raw.size()) blanked.scanBuffer += toolkit::lowerCase(raw[caret + 1]);
        blanked.scanBuffer += toolkit::noBreakSpace;
        copied = std::min(caret + 2, raw.size());
        // The search goes on one character behind the escape: a "^" right behind it stays.
        caret = raw.find('^', copied + 1);
    }
    blanked.caption.append(raw.substr(copied));
    blanked.scanBuffer.append(raw.substr(copied));
    return blanked;
}

std::vector<SuitPlace> suitPlaces(std::string_view scanBuffer) {
    std::vector<SuitPlace> places;
    for (std::size_t caret = scanBuffer.find('^'); caret != std::string_view::npos;
         caret = scanBuffer.find('^', caret + 1)) {
        if (caret + 1 == scanBuffer.size()) break;
        // The letter is in lower case already, except in an escape that the blanking passed over.
        const std::size_t suit = suitLetters.find(scanBuffer[caret + 1]);
        if (suit == std::string_view::npos) continue;
        places.push_back({static_cast<int>(caret) + 1, static_cast<int>(suit) + 1});
    }
    return places;
}

} // namespace zev
