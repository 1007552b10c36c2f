#include "toolkit/text/qt_font_face.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <optional>
#include <string>

#include "toolkit/base/ansi.h"
#include "toolkit/text/qt_font_family.h"

namespace toolkit {
namespace {

// A font's own tables give its design widths, the same on every platform and at every size; Qt's
// measures depend on the platform's rasteriser. Their numbers are big-endian.
std::optional<int> unsignedAt(const QByteArray& table, qsizetype offset) {
    if (offset < 0 || offset + 2 > table.size()) return std::nullopt;
    return static_cast<unsigned char>(table[offset]) << 8 |
           static_cast<unsigned char>(table[offset + 1]);
}

std::optional<int> signedAt(const QByteArray& table, qsizetype offset) {
    const auto value = unsignedAt(table, offset);
    return value ? std::optional(static_cast<int>(static_cast<std::int16_t>(*value))) : value;
}

struct HorizontalTables {
    QByteArray header;
    QByteArray metrics;

    explicit HorizontalTables(const QRawFont& font)
        : header(font.fontTable("hhea")), metrics(font.fontTable("hmtx")) {}

    // Trailing glyphs of equal width share the last entry.
    [[nodiscard]] std::optional<int> advance(quint32 glyph) const {
        const int count = unsignedAt(header, 34).value_or(0);
        if (count == 0) return std::nullopt;
        return unsignedAt(metrics, 4 * std::min<qsizetype>(glyph, count - 1));
    }
};

// For fonts that come without the tables: at one unit a pixel, Qt measures in units.
int measuredAdvance(const QRawFont& unitFont, quint32 glyph) {
    const QList<QPointF> advances = unitFont.advancesForGlyphIndexes(
        QList<quint32>{glyph}, QRawFont::SeparateAdvances | QRawFont::UseDesignMetrics);
    return advances.isEmpty() ? 0 : static_cast<int>(std::lround(advances.front().x()));
}

AdvanceTable measure(const QRawFont& unitFont, const std::array<quint32, 256>& glyphs) {
    const HorizontalTables tables(unitFont);
    AdvanceTable table;
    table.unitsPerEm = static_cast<int>(std::lround(unitFont.unitsPerEm()));
    table.ascent = signedAt(tables.header, 4).value_or(static_cast<int>(unitFont.ascent()));
    const int below = signedAt(tables.header, 6).value_or(-static_cast<int>(unitFont.descent()));
    table.descent = -below;
    std::ranges::transform(glyphs, table.advances.begin(), [&](quint32 glyph) {
        const auto advance = tables.advance(glyph);
        return advance ? *advance : measuredAdvance(unitFont, glyph);
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

QFont styledFont(const FontSpec& font) {
    QFont styled = plainFont(fontFamily(font.Name).family);
    styled.setBold(font.Bold);
    styled.setItalic(font.Italic);
    return styled;
}

const AdvanceTable& advanceTable(const FontSpec& font) { return fontFace(font).measures; }

} // namespace toolkit
