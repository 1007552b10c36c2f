#include "text/spoken_text.h"

#include <algorithm>
#include <array>

#include "text/escapes.h"
#include "toolkit/base/ansi.h"

namespace zev {
namespace {

constexpr std::array<std::string_view, 4> suitWords{"clubs", "diamonds", "hearts", "spades"};

/// The word for the escape at that place; empty if there is none.
std::string_view wordAt(std::string_view text, std::size_t place) {
    if (place + 1 >= text.size() || text[place] != '^') return {};
    const auto suit = suitLetters.find(toolkit::lowerCase(text[place + 1]));
    return suit == std::string_view::npos ? std::string_view{} : suitWords[suit];
}

bool joinsWords(char character) {
    const auto isWithin = [character](char first, char last) {
        return toolkit::code(first) <= toolkit::code(character) &&
               toolkit::code(character) <= toolkit::code(last);
    };
    // From there on the code page has letters with their marks.
    return isWithin('0', '9') || isWithin('a', 'z') || isWithin('A', 'Z') ||
           isWithin('\xC0', '\xFF') || character == '^';
}

} // namespace

SpokenText::SpokenText(std::string_view typed) : typed_(typed) {
    const auto say = [this](std::string_view what, Origin origin) {
        text_ += what;
        origins_.insert(origins_.end(), what.size(), origin);
    };
    for (std::size_t place = 0; place < typed.size();) {
        const std::string_view word = wordAt(typed, place);
        if (word.empty()) {
            say(typed.substr(place, 1), {place, place + 1});
            ++place;
            continue;
        }
        const Origin origin{place, place + 2};
        // The blanks between words stand for nothing that was typed.
        if (!text_.empty() && joinsWords(text_.back())) say(" ", {place, place});
        say(word, origin);
        place += 2;
        if (place < typed.size() && joinsWords(typed[place])) say(" ", {place, place});
    }
}

TypedAround SpokenText::around(int start, int end) const {
    const auto size = static_cast<int>(origins_.size());
    start = std::clamp(start, 0, size);
    end = std::clamp(end, start, size);
    const auto at = [this](int place) { return origins_[static_cast<std::size_t>(place)]; };
    const std::size_t from = start < size ? at(start).begin : typed_.size();
    const std::size_t to = end > start ? at(end - 1).end : from;
    return {typed_.substr(0, from), typed_.substr(to)};
}

std::string SpokenText::replaced(int start, int end, std::string_view typed) const {
    const auto size = static_cast<int>(text_.size());
    start = std::clamp(start, 0, size);
    end = std::clamp(end, start, size);
    const auto before = text_.begin() + start;
    const auto behind = text_.begin() + end;
    const auto [head, newHead] = std::mismatch(before, behind, typed.begin(), typed.end());
    const auto [tail, newTail] =
        std::mismatch(std::reverse_iterator(behind), std::reverse_iterator(head), typed.rbegin(),
                      std::reverse_iterator(newHead));
    const TypedAround left = around(static_cast<int>(head - text_.begin()),
                                    static_cast<int>(tail.base() - text_.begin()));
    return left.before + std::string(newHead, newTail.base()) + left.after;
}

} // namespace zev
