// The fonts that the card is made with.
#pragma once

#include <filesystem>

#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>

#include "card_tool/item.h"

namespace card_tool {

/// The outlines and measures of one font, unhinted and unkerned.
class Typeface {
  public:
    /// Throws Failure if the system has no such font.
    [[nodiscard]] static Typeface installed(const char* family, Weight weight);
    /// One of pictures, by their bytes. Throws Failure if the file is no font.
    [[nodiscard]] static Typeface fromFile(const std::filesystem::path& path);

    /// All measures are in ems.
    [[nodiscard]] double advance(char32_t character) const;
    [[nodiscard]] double ascent() const { return font_.ascent() / size; }
    [[nodiscard]] double descent() const { return font_.descent() / size; }
    [[nodiscard]] double height() const { return ascent() + descent(); }

    /// The outline of a character with its origin at (0, 0), y downward, at an em of that many
    /// pixels.
    [[nodiscard]] QPainterPath outline(char32_t character, double em) const;

  private:
    /// Pictures have their codes in a private range.
    enum class Codes : char32_t { Unicode = 0, Pictures = 0xF000 };

    explicit Typeface(const QRawFont& font, Codes codes) : font_(font), codes_(codes) {}
    [[nodiscard]] quint32 glyph(char32_t character) const;

    /// One pixel for each font unit, so that outlines come without any rounding.
    static constexpr double size = 2048;
    QRawFont font_;
    Codes codes_;
};

/// Every font that the card is made with.
struct Typefaces {
    Typeface printRegular;
    Typeface printBold;
    Typeface suits;
    Typeface typedSuits;
    Typeface marksRegular;
    Typeface marksBold;
    Typeface textRegular;
    Typeface textBold;
    Typeface textNarrow;

    [[nodiscard]] const Typeface& print(Weight weight) const {
        return weight == Weight::Bold ? printBold : printRegular;
    }
};

/// Loads them: the project's own from a folder, the others from the system.
[[nodiscard]] Typefaces loadTypefaces(const std::filesystem::path& ownFonts);

/// Whether a character is one of the four suit signs.
[[nodiscard]] constexpr bool isSuit(char32_t character) {
    return character == U'\u2660' || character == U'\u2663' || character == U'\u2665' ||
           character == U'\u2666';
}
[[nodiscard]] char32_t suitCode(char32_t suit);
[[nodiscard]] constexpr bool isRedSuit(char32_t suit) {
    return suit == U'\u2665' || suit == U'\u2666';
}

} // namespace card_tool
