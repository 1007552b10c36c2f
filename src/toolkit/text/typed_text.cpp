#include "toolkit/text/typed_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <QtCore/QString>

#include "toolkit/base/ansi.h"
#include "toolkit/base/utf8.h"

namespace toolkit {
namespace {

constexpr char32_t combiningCircumflex = 0x0302;
constexpr std::string_view suits = "cdhs";

/// Black and white signs of the suits in their order.
constexpr std::array suitSigns{std::pair{U'\u2663', 'c'}, std::pair{U'\u2666', 'd'},
                               std::pair{U'\u2665', 'h'}, std::pair{U'\u2660', 's'},
                               std::pair{U'\u2667', 'c'}, std::pair{U'\u2662', 'd'},
                               std::pair{U'\u2661', 'h'}, std::pair{U'\u2664', 's'}};

/// What an input method makes of "^" and the letter of a suit. For "d" it has no character.
constexpr std::array circumflexLetters{std::pair{U'\u0109', 'c'}, std::pair{U'\u0125', 'h'},
                                       std::pair{U'\u015D', 's'}, std::pair{U'\u0108', 'C'},
                                       std::pair{U'\u0124', 'H'}, std::pair{U'\u015C', 'S'}};

/// Letters and signs that Unicode doesn't take apart, by what they are drawn upon.
constexpr std::array plainForms{
    std::pair{U'\u0110', 'D'}, std::pair{U'\u0111', 'd'},    std::pair{U'\u0126', 'H'},
    std::pair{U'\u0127', 'h'}, std::pair{U'\u0131', 'i'},    std::pair{U'\u0138', 'k'},
    std::pair{U'\u0141', 'L'}, std::pair{U'\u0142', 'l'},    std::pair{U'\u014A', 'N'},
    std::pair{U'\u014B', 'n'}, std::pair{U'\u0166', 'T'},    std::pair{U'\u0167', 't'},
    std::pair{U'\u0180', 'b'}, std::pair{U'\u0181', 'B'},    std::pair{U'\u0187', 'C'},
    std::pair{U'\u0188', 'c'}, std::pair{U'\u0189', 'D'},    std::pair{U'\u018A', 'D'},
    std::pair{U'\u0191', 'F'}, std::pair{U'\u0193', 'G'},    std::pair{U'\u0197', 'I'},
    std::pair{U'\u0198', 'K'}, std::pair{U'\u0199', 'k'},    std::pair{U'\u019A', 'l'},
    std::pair{U'\u019D', 'N'}, std::pair{U'\u019E', 'n'},    std::pair{U'\u01A4', 'P'},
    std::pair{U'\u01A5', 'p'}, std::pair{U'\u01AB', 't'},    std::pair{U'\u01AC', 'T'},
    std::pair{U'\u01AD', 't'}, std::pair{U'\u01AE', 'T'},    std::pair{U'\u01B3', 'Y'},
    std::pair{U'\u01B4', 'y'}, std::pair{U'\u01B5', 'Z'},    std::pair{U'\u01B6', 'z'},
    std::pair{U'\u01E4', 'G'}, std::pair{U'\u01E5', 'g'},    std::pair{U'\u0224', 'Z'},
    std::pair{U'\u0225', 'z'}, std::pair{U'\u0237', 'j'},    std::pair{U'\u023A', 'A'},
    std::pair{U'\u023B', 'C'}, std::pair{U'\u023C', 'c'},    std::pair{U'\u023D', 'L'},
    std::pair{U'\u023E', 'T'}, std::pair{U'\u0243', 'B'},    std::pair{U'\u0244', 'U'},
    std::pair{U'\u0246', 'E'}, std::pair{U'\u0247', 'e'},    std::pair{U'\u0248', 'J'},
    std::pair{U'\u0249', 'j'}, std::pair{U'\u024C', 'R'},    std::pair{U'\u024D', 'r'},
    std::pair{U'\u024E', 'Y'}, std::pair{U'\u024F', 'y'},    std::pair{U'\u0253', 'b'},
    std::pair{U'\u0256', 'd'}, std::pair{U'\u0257', 'd'},    std::pair{U'\u0268', 'i'},
    std::pair{U'\u0289', 'u'}, std::pair{U'\u02BC', '\''},   std::pair{U'\u1E9E', '\xDF'},
    std::pair{U'\u2010', '-'}, std::pair{U'\u2015', '\x97'}, std::pair{U'\u2032', '\''},
    std::pair{U'\u2212', '-'}, std::pair{U'\u2C65', 'a'},    std::pair{U'\u2C66', 't'}};

template <std::size_t Size>
std::optional<char> lookUp(const std::array<std::pair<char32_t, char>, Size>& table,
                           char32_t value) {
    const auto found = std::ranges::find(table, value, &std::pair<char32_t, char>::first);
    if (found == table.end()) return std::nullopt;
    return found->second;
}

bool isLineEndOrTab(char32_t value) {
    return (value >= 0x09 && value <= 0x0D) || value == 0x85 || value == 0x2028 || value == 0x2029;
}

bool isMark(char32_t value) {
    const auto category = QChar::category(value);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_SpacingCombining ||
           category == QChar::Mark_Enclosing;
}

/// Leaves nothing behind: control characters, and what only tells how its neighbours are shown, as
/// do marks that no character of the code page goes together with.
bool isUnseen(char32_t value) {
    const bool control = value < 0x20 || (value >= 0x7F && value < 0xA0);
    const bool ofOthers = value > 0xFF && QChar::category(value) == QChar::Other_Format;
    return control || ofOthers || isMark(value);
}

/// The letters that a character is made of, without their marks. Signs keep their marks: an equals
/// sign isn't what is meant by one that is crossed out.
std::string baseLetters(char32_t value) {
    const auto parts =
        QString::fromUcs4(&value, 1).normalized(QString::NormalizationForm_KD).toStdU32String();
    std::string text;
    for (const char32_t part : parts) {
        if (isMark(part) && QChar::isLetter(parts.front())) continue;
        const auto character = ansiOf(part) ? ansiOf(part) : lookUp(plainForms, part);
        if (!character) return "?";
        text += *character;
    }
    return text;
}

class TypedText {
  public:
    explicit TypedText(std::string_view before) : text_(before), start_(before.size()) {}

    void take(char32_t value) {
        const bool breaks = isLineEndOrTab(value);
        if (breaks && !std::exchange(broken_, true)) text_ += ' ';
        if (breaks) return;
        broken_ = false;
        if (const auto suit = suitOf(value)) return addEscape(*suit);
        if (isUnseen(value)) return;
        separateFrom(value);
        const auto character = ansiOf(value);
        text_ += character ? std::string(1, *character) : baseLetters(value);
    }

    [[nodiscard]] std::string before(std::string_view after) {
        if (!after.empty()) separateFrom(static_cast<unsigned char>(after.front()));
        return text_.substr(start_);
    }

  private:
    std::optional<char> suitOf(char32_t value) {
        if (const auto suit = lookUp(suitSigns, value)) return suit;
        if (const auto suit = lookUp(circumflexLetters, value)) return suit;
        const bool onLetter = value == combiningCircumflex && text_.size() > start_ &&
                              suits.find(lowerCase(text_.back())) != std::string_view::npos;
        if (!onLetter) return std::nullopt;
        const char letter = text_.back();
        text_.pop_back();
        return letter;
    }

    /// Of two escapes side by side the second would show as it is written.
    void addEscape(char letter) {
        const bool behindEscape = text_.size() >= 2 && text_[text_.size() - 2] == '^';
        if (behindEscape) text_ += ' ';
        text_ += '^';
        text_ += letter;
        endsInSign_ = true;
    }
    void separateFrom(char32_t next) {
        if (std::exchange(endsInSign_, false) && next == '^') text_ += ' ';
    }

    std::string text_;
    std::size_t start_;
    bool broken_ = false;     ///< the blank for a line end stands
    bool endsInSign_ = false; ///< the last character was a suit
};

std::optional<char32_t> signOf(char letter) {
    const auto found =
        std::ranges::find(suitSigns, lowerCase(letter), &std::pair<char32_t, char>::second);
    if (found == suitSigns.end()) return std::nullopt;
    return found->first;
}

} // namespace

std::string ansiFromTyped(std::string_view utf8, const TextAround& around) {
    TypedText typed(around.before);
    const auto composed = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()))
                              .normalized(QString::NormalizationForm_C);
    for (const char32_t value : composed.toStdU32String()) typed.take(value);
    return typed.before(around.after);
}

std::string utf8ForOthers(std::string_view text) {
    std::string utf8;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto sign =
            text[i] == '^' && i + 1 < text.size() ? signOf(text[i + 1]) : std::nullopt;
        if (sign) ++i;
        appendUtf8(utf8, sign ? *sign : unicodeOf(text[i] == noBreakSpace ? ' ' : text[i]));
    }
    return utf8;
}

} // namespace toolkit
