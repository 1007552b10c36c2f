#include "card_tool/typeface.h"

#include <QtGui/QFont>
#include <QtGui/QTransform>

#include "card_tool/failure.h"

namespace card_tool {

Typeface Typeface::installed(const char* family, Weight weight) {
    QFont wanted(QString::fromLatin1(family));
    wanted.setPixelSize(static_cast<int>(size));
    wanted.setBold(weight == Weight::Bold);
    wanted.setHintingPreference(QFont::PreferNoHinting);
    QRawFont font = QRawFont::fromFont(wanted);
    if (!font.isValid() || font.familyName() != QString::fromLatin1(family))
        throw Failure(std::string("the font is not installed: ") + family);
    return Typeface(font, Codes::Unicode);
}

Typeface Typeface::fromFile(const std::filesystem::path& path) {
    QRawFont font(QString::fromStdString(path.string()), size, QFont::PreferNoHinting);
    if (!font.isValid()) throw Failure("not a font: " + path.string());
    return Typeface(font, Codes::Pictures);
}

quint32 Typeface::glyph(char32_t character) const {
    const char32_t value = static_cast<char32_t>(codes_) + character;
    const QList<quint32> found = font_.glyphIndexesForString(QString::fromUcs4(&value, 1));
    if (found.isEmpty() || found.front() == 0)
        throw Failure("the font " + font_.familyName().toStdString() + " lacks character " +
                      std::to_string(static_cast<unsigned>(character)));
    return found.front();
}

double Typeface::advance(char32_t character) const {
    return font_.advancesForGlyphIndexes({glyph(character)}, QRawFont::UseDesignMetrics)
               .front()
               .x() /
           size;
}

QPainterPath Typeface::outline(char32_t character, double em) const {
    QPainterPath path = font_.pathForGlyph(glyph(character));
    path.setFillRule(Qt::WindingFill);
    return QTransform::fromScale(em / size, em / size).map(path);
}

Typefaces loadTypefaces(const std::filesystem::path& ownFonts) {
    return {.printRegular = Typeface::installed("Liberation Sans Narrow", Weight::Regular),
            .printBold = Typeface::installed("Liberation Sans Narrow", Weight::Bold),
            .suits = Typeface::fromFile(ownFonts / "zevlin-print-suits.ttf"),
            .typedSuits = Typeface::fromFile(ownFonts / "zevlin-suits.ttf"),
            .marksRegular = Typeface::fromFile(ownFonts / "zevlin-marks-regular.ttf"),
            .marksBold = Typeface::fromFile(ownFonts / "zevlin-marks-bold.ttf"),
            .textRegular = Typeface::installed("Liberation Sans", Weight::Regular),
            .textBold = Typeface::installed("Liberation Sans", Weight::Bold),
            .textNarrow = Typeface::installed("Liberation Sans Narrow", Weight::Regular)};
}

char32_t suitCode(char32_t suit) {
    switch (suit) {
    case U'\u2663':
        return 167;
    case U'\u2666':
        return 168;
    case U'\u2665':
        return 169;
    default:
        return 170;
    }
}

} // namespace card_tool
