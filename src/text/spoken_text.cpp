#include "text/spoken_text.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "text/escapes.h"

namespace zev {
namespace {

constexpr std::array<std::string_view, 4> suitWords{"clubs", "diamonds", "hearts", "spades"};

/// The word for the escape at that place; empty if there is none.
std::string_view wordAt(std::string_view text, std::size_t place) {
    if (place + 1 >= text.size() || text[place] != '^') return {};
    const auto letter =
        static_cast<char>(std::tolower(static_cast<unsigned char>(text[place + 1])));
    const auto suit = suitLetters.find(letter);
    return suit == std::string_view::npos ? std::string_view{} : suitWords[suit];
}

bool joinsWords(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '^';
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

} // namespace zev
