#include "toolkit/text/qt_font_face.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <string>

#include <QtCore/QtEndian>

#include "toolkit/base/ansi.h"
#include "toolkit/text/qt_font_family.h"

namespace toolkit {
namespace {

/// Above and below the baseline, in units, the second negative. Read from the font's own table:
/// for the substitute of Arial Narrow Qt takes others (1888 and 431 units instead of 1916 and 434),
/// and the texts in it would move up by a seventieth of their size.
std::array<int, 2> extents(const QRawFont& unitFont) {
    constexpr qsizetype ascentPlace = 4;
    constexpr qsizetype descentPlace = 6;
    const QByteArray header = unitFont.fontTable("hhea");
    if (header.size() < descentPlace + 2)
        return {static_cast<int>(unitFont.ascent()), -static_cast<int>(unitFont.descent())};
    return {qFromBigEndian<qint16>(header.constData() + ascentPlace),
            qFromBigEndian<qint16>(header.constData() + descentPlace)};
}

/// At a size of one pixel for each font unit Qt measures in units: the design's own widths, the
/// same at every size.
AdvanceTable measure(const QRawFont& unitFont, const std::array<quint32, 256>& glyphs) {
    AdvanceTable table;
    table.unitsPerEm = static_cast<int>(std::lround(unitFont.unitsPerEm()));
    const auto [ascent, descent] = extents(unitFont);
    table.ascent = ascent;
    table.descent = -descent;
    const QList<QPointF> advances =
        unitFont.advancesForGlyphIndexes(QList<quint32>(glyphs.begin(), glyphs.end()),
                                         QRawFont::SeparateAdvances | QRawFont::UseDesignMetrics);
    std::ranges::transform(advances, table.advances.begin(), [](const QPointF& advance) {
        return static_cast<int>(std::lround(advance.x()));
    });
    return table;
}

FontFace loadFace(const FontSpec& font) {
    FontFace face;
    QRawFont rawFont = QRawFont::fromFont(styledFont(font));
    if (!rawFont.isValid() || rawFont.unitsPerEm() < 1) return face;
    const FontEncoding encoding = fontFamily(font.Name).encoding;
    for (unsigned value = 0; value < face.glyphs.size(); ++value)
        face.glyphs[value] = glyphOf(rawFont, encoding, static_cast<char>(value));
    face.glyphs[code(noBreakSpace)] = face.glyphs[' '];
    rawFont.setPixelSize(rawFont.unitsPerEm());
    face.measures = measure(rawFont, face.glyphs);
    return face;
}

struct KnownFace {
    std::string name;
    bool bold = false;
    bool italic = false;
    FontFace face;
};

} // namespace

const FontFace& fontFace(const FontSpec& font) {
    static std::deque<KnownFace> known;
    static const KnownFace* last = nullptr;
    const auto fits = [&](const KnownFace& entry) {
        return entry.bold == font.Bold && entry.italic == font.Italic && entry.name == font.Name;
    };
    if (last != nullptr && fits(*last)) return last->face;
    const auto found = std::ranges::find_if(known, fits);
    if (found != known.end()) {
        last = &*found;
    } else {
        known.push_back({font.Name, font.Bold, font.Italic, loadFace(font)});
        last = &known.back();
    }
    return last->face;
}

QFont styledFont(const FontSpec& font) { return styledFont(font, fontFamily(font.Name).family); }

QFont styledFont(const FontSpec& font, const QString& family) {
    QFont styled = plainFont(family);
    styled.setBold(font.Bold);
    styled.setItalic(font.Italic);
    return styled;
}

const AdvanceTable& advanceTable(const FontSpec& font) { return fontFace(font).measures; }

} // namespace toolkit
