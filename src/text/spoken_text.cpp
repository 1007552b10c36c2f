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

bool SpokenText::isWord(std::size_t place) const {
    return place < origins_.size() && origins_[place].end - origins_[place].begin > 1;
}

bool SpokenText::isSeam(std::size_t place) const {
    if (place == 0 || place >= origins_.size()) return true;
    const Origin& before = origins_[place - 1];
    const Origin& behind = origins_[place];
    const bool cutsWord = isWord(place) && before.begin == behind.begin && isWord(place - 1);
    const bool cutsBlank = (before.begin == before.end && isWord(place)) ||
                           (behind.begin == behind.end && isWord(place - 1));
    return !cutsWord && !cutsBlank;
}

std::string SpokenText::replaced(int start, int end, std::string_view typed) const {
    const auto size = static_cast<int>(text_.size());
    auto from = static_cast<std::size_t>(std::clamp(start, 0, size));
    auto to = static_cast<std::size_t>(std::clamp(end, static_cast<int>(from), size));
    std::string inserted(typed);
    // Another word in the place of a suit's is set off as that was.
    if (!isSeam(from) && isWord(from) && !isWord(from - 1) && !typed.empty() && typed[0] != '^') {
        --from;
        inserted.insert(0, " ");
    }
    typed = inserted;
    const std::string_view said = std::string_view(text_).substr(from, to - from);
    const auto head = std::ranges::mismatch(said, typed).in1 - said.begin();
    auto same = static_cast<std::size_t>(head);
    while (same > 0 && !isSeam(from + same)) --same;
    from += same;
    typed.remove_prefix(same);
    const auto last =
        std::mismatch(said.rbegin(), said.rend() - head, typed.rbegin(), typed.rend()).first;
    same = static_cast<std::size_t>(last - said.rbegin());
    while (same > 0 && !isSeam(to - same)) --same;
    to -= same;
    typed.remove_suffix(same);
    const TypedAround left = around(static_cast<int>(from), static_cast<int>(to));
    return left.before + std::string(typed) + left.after;
}

} // namespace zev
