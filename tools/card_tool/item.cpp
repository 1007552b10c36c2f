#include "card_tool/item.h"

#include <charconv>
#include <sstream>
#include <string_view>
#include <utility>

#include "card_tool/failure.h"
#include "toolkit/base/utf8.h"

namespace card_tool {
namespace {

/// Blanks that count as part of the text.
constexpr std::u32string_view indent = U"\u00A0\u00A0\u00A0";

std::u32string fromUtf8(std::string_view bytes) {
    std::u32string characters;
    while (const auto character = toolkit::takeUtf8(bytes)) characters.push_back(*character);
    return characters;
}

std::string toAscii(const std::u32string& characters) {
    std::string text;
    for (const char32_t character : characters) text.push_back(static_cast<char>(character));
    return text;
}

/// Walks along a row and collects its cells.
class RowReader {
  public:
    explicit RowReader(std::u32string row) : row_(std::move(row)) {}

    std::vector<Cell> read() {
        while (at_ < row_.size()) step(row_[at_++]);
        finishWords();
        if (inks_.size() != 1) throw Failure("a colour group is not closed");
        if (weight_ == Weight::Bold) throw Failure("bold words are not closed");
        return std::move(cells_);
    }

  private:
    void step(char32_t character) {
        switch (character) {
        case U'|':
            newCell();
            break;
        case U'^':
            cells_.back().align = CellAlign::Centre;
            break;
        case U'>':
            cells_.back().place = CellPlace::LentToNext;
            break;
        case U'\\':
            words_ += indent;
            break;
        case U'*':
            switchWeight();
            break;
        case U'{':
            openInk();
            break;
        case U'}':
            closeInk();
            break;
        case U'[':
            add(ItemKind::Box, toAscii(upTo(U']')));
            break;
        case U'<':
            addArea(toAscii(upTo(U'>')));
            break;
        case U'@':
            addCircle();
            break;
        case U'~':
            add(ItemKind::Fill, {});
            break;
        case U' ':
            addBlank();
            break;
        default:
            words_.push_back(character);
        }
    }

    void newCell() {
        finishWords();
        cells_.emplace_back();
        blank_ = false;
    }

    void addBlank() {
        if (words_.empty())
            blank_ = true;
        else if (words_.back() != U' ')
            words_.push_back(U' ');
    }

    void switchWeight() {
        finishWords();
        weight_ = weight_ == Weight::Bold ? Weight::Regular : Weight::Bold;
    }

    void openInk() {
        finishWords();
        const std::string name = toAscii(upTo(U' '));
        if (name != "red" && name != "blue") throw Failure("no such colour: " + name);
        inks_.push_back(name == "red" ? Ink::Red : Ink::Blue);
    }

    void closeInk() {
        finishWords();
        if (inks_.size() == 1) throw Failure("a colour group ends that never began");
        inks_.pop_back();
    }

    std::u32string upTo(char32_t end) {
        const std::size_t found = row_.find(end, at_);
        if (found == std::u32string::npos) throw Failure("a bracket is not closed");
        std::u32string inside = row_.substr(at_, found - at_);
        at_ = found + 1;
        return inside;
    }

    Item& add(ItemKind kind, const std::string& id) {
        finishWords();
        Item item;
        item.kind = kind;
        item.id = id;
        item.ink = inks_.back();
        item.weight = weight_;
        item.blankBefore = std::exchange(blank_, false);
        cells_.back().items.push_back(std::move(item));
        return cells_.back().items.back();
    }

    void addArea(const std::string& inside) {
        std::istringstream parts(inside);
        std::string id;
        std::string option;
        parts >> id;
        Item& area = add(ItemKind::Area, id);
        while (parts >> option) {
            if (option == "large")
                area.areaSize = AreaSize::Large;
            else if (std::from_chars(option.data(), option.data() + option.size(), area.width).ec !=
                     std::errc{})
                throw Failure("a text area is neither large nor so wide: " + option);
        }
    }

    /// "@id=K" is a letter to circle, "@id=!K" one that is printed bold.
    void addCircle() {
        Item& circle = add(ItemKind::Circle, toAscii(upTo(U'=')));
        if (at_ < row_.size() && row_[at_] == U'!') {
            circle.weight = Weight::Bold;
            ++at_;
        }
        if (at_ == row_.size()) throw Failure("a circle has no letter");
        circle.text = row_.substr(at_++, 1);
    }

    void finishWords() {
        const bool blankBehind = !words_.empty() && words_.back() == U' ';
        if (blankBehind) words_.pop_back();
        if (!words_.empty()) {
            const std::u32string words = std::exchange(words_, {});
            add(ItemKind::Words, {}).text = words;
        }
        blank_ = blank_ || blankBehind;
    }

    std::u32string row_;
    std::size_t at_ = 0;
    std::vector<Cell> cells_{1};
    std::vector<Ink> inks_{Ink::Black};
    Weight weight_ = Weight::Regular;
    std::u32string words_{};
    bool blank_ = false;
};

} // namespace

std::vector<Cell> readCells(const std::string& utf8) { return RowReader(fromUtf8(utf8)).read(); }

} // namespace card_tool
