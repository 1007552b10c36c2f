// A text of the card as one says it: its suits as words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zev {

/// A typed text before and behind a place.
struct TypedAround {
    std::string before;
    std::string after;
};

class SpokenText {
  public:
    /// `typed`: single ampersands, suits as escapes.
    explicit SpokenText(std::string_view typed);

    /// "5 hearts up" for "5^h up". A word is set off by blanks where there are none.
    [[nodiscard]] const std::string& text() const { return text_; }
    /// What is left of the typed text without the places from `start` to before `end` of what is
    /// said. A word of which any part goes, goes whole.
    [[nodiscard]] TypedAround around(int start, int end) const;
    /// The typed text with another one in the place of these. What stays the same at both ends
    /// stays as it was typed: a suit's word is its suit.
    [[nodiscard]] std::string replaced(int start, int end, std::string_view typed) const;

  private:
    /// Whether the character at the place is of the word of a suit.
    [[nodiscard]] bool isWord(std::size_t place) const;
    /// Whether what stands behind the place can go and what stands before it stay, or the other way
    /// round: a suit's word goes whole, and with it the blank that sets it off.
    [[nodiscard]] bool isSeam(std::size_t place) const;

    std::string typed_;
    std::string text_;
    /// For each character that is said: where what it stands for begins and ends in the typed text.
    struct Origin {
        std::size_t begin = 0;
        std::size_t end = 0;
    };
    std::vector<Origin> origins_;
};

} // namespace zev
