#include "card_tool/item.h"

#include "card_tool/failure.h"

#include <charconv>
#include <sstream>
#include <string_view>
#include <utility>

namespace card {
namespace {

/// Blanks that stay where they are.
constexpr std::u32string_view indent = U"\u00A0\u00A0\u00A0";

std::u32string fromUtf8(const std::string& bytes) {
    std::u32string characters;
    for (std::size_t at = 0; at < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[at++]);
        const int more = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        char32_t character = more == 0 ? lead : lead & (0x3FU >> more);
        for (int follow = 0; follow < more && at < bytes.size(); ++follow)
            character = (character << 6) | (static_cast<unsigned char>(bytes[at++]) & 0x3FU);
        characters.push_back(character);
    }
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
    explicit RowReader(std::u32string row) : m_row(std::move(row)) {}

    std::vector<Cell> read() {
        while (m_at < m_row.size()) step(m_row[m_at++]);
        finishWords();
        if (m_inks.size() != 1) throw Failure("a colour group is not closed");
        if (m_weight == Weight::Bold) throw Failure("bold words are not closed");
        return std::move(m_cells);
    }

  private:
    void step(char32_t character) {
        switch (character) {
        case U'|':
            newCell();
            break;
        case U'^':
            m_cells.back().align = CellAlign::Centre;
            break;
        case U'>':
            m_cells.back().place = CellPlace::LentToNext;
            break;
        case U'\\':
            m_words += indent;
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
            m_words.push_back(character);
        }
    }

    void newCell() {
        finishWords();
        m_cells.emplace_back();
        m_blank = false;
    }

    void addBlank() {
        if (m_words.empty())
            m_blank = true;
        else if (m_words.back() != U' ')
            m_words.push_back(U' ');
    }

    void switchWeight() {
        finishWords();
        m_weight = m_weight == Weight::Bold ? Weight::Regular : Weight::Bold;
    }

    void openInk() {
        finishWords();
        const std::string name = toAscii(upTo(U' '));
        if (name != "red" && name != "blue") throw Failure("no such colour: " + name);
        m_inks.push_back(name == "red" ? Ink::Red : Ink::Blue);
    }

    void closeInk() {
        finishWords();
        if (m_inks.size() == 1) throw Failure("a colour group ends that never began");
        m_inks.pop_back();
    }

    std::u32string upTo(char32_t end) {
        const std::size_t found = m_row.find(end, m_at);
        if (found == std::u32string::npos) throw Failure("a bracket is not closed");
        const std::u32string inside = m_row.substr(m_at, found - m_at);
        m_at = found + 1;
        return inside;
    }

    Item& add(ItemKind kind, const std::string& id) {
        finishWords();
        Item item;
        item.kind = kind;
        item.id = id;
        item.ink = m_inks.back();
        item.weight = m_weight;
        item.blankBefore = std::exchange(m_blank, false);
        m_cells.back().items.push_back(std::move(item));
        return m_cells.back().items.back();
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
        if (m_at < m_row.size() && m_row[m_at] == U'!') {
            circle.weight = Weight::Bold;
            ++m_at;
        }
        if (m_at == m_row.size()) throw Failure("a circle has no letter");
        circle.text = m_row.substr(m_at++, 1);
    }

    void finishWords() {
        const bool blankBehind = !m_words.empty() && m_words.back() == U' ';
        if (blankBehind) m_words.pop_back();
        if (!m_words.empty()) {
            const std::u32string words = std::exchange(m_words, {});
            add(ItemKind::Words, {}).text = words;
        }
        m_blank = m_blank || blankBehind;
    }

    std::u32string m_row;
    std::size_t m_at = 0;
    std::vector<Cell> m_cells{1};
    std::vector<Ink> m_inks{Ink::Black};
    Weight m_weight = Weight::Regular;
    std::u32string m_words{};
    bool m_blank = false;
};

} // namespace

std::vector<Cell> readCells(const std::string& utf8) { return RowReader(fromUtf8(utf8)).read(); }

} // namespace card
