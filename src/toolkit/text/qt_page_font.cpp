#include "toolkit/text/qt_page_font.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>
#include <QtGui/QRawFont>

#include "toolkit/base/ansi.h"
#include "toolkit/text/qt_font_face.h"
#include "toolkit/text/qt_font_family.h"
#include "toolkit/text/qt_font_file.h"

namespace toolkit {
namespace {

using CharacterGlyphs = std::map<char16_t, quint16>;

/// The place of each glyph that a text may have drawn in the block of pictures.
std::map<quint32, char16_t> placesOf(const FontFace& face) {
    std::map<quint32, char16_t> places;
    for (std::size_t value = face.glyphs.size(); value-- > 0;)
        places[face.glyphs[value]] = static_cast<char16_t>(pictureBlock + value);
    places.erase(0);
    for (const char blank : {' ', noBreakSpace}) places.erase(face.glyphs[code(blank)]);
    return places;
}

/// The characters that glyphs of the code page may stand for: its own, and among Unicode's signs
/// those that pictures show. The foremost come last.
std::vector<QChar> charactersThatMayBe() {
    constexpr char16_t firstSign = 0x2000;
    constexpr char16_t lastSign = 0x2BFF;
    std::vector<QChar> characters;
    for (unsigned value = lastSign; value >= firstSign; --value)
        characters.emplace_back(static_cast<char16_t>(value));
    for (unsigned value = 0x100; value-- > 0;)
        characters.emplace_back(static_cast<char16_t>(unicodeOf(static_cast<char>(value))));
    return characters;
}

/// By which the glyphs of the code page are told to who reads a page.
CharacterGlyphs charactersOf(const QRawFont& font, const FontFace& face) {
    const std::vector<QChar> characters = charactersThatMayBe();
    std::vector<quint32> glyphs(characters.size());
    int count = static_cast<int>(glyphs.size());
    if (!font.glyphIndexesForChars(characters.data(), count, glyphs.data(), &count)) return {};
    std::map<quint32, char16_t> told = placesOf(face);
    for (std::size_t i = 0; i < glyphs.size(); ++i)
        if (const auto entry = told.find(glyphs[i]); entry != told.end())
            entry->second = characters[i].unicode();
    CharacterGlyphs found;
    for (const auto& [glyph, character] : told)
        found.emplace(character, static_cast<quint16>(glyph));
    return found;
}

bool hasGlyphs(const QRawFont& font, const CharacterGlyphs& characters) {
    return std::ranges::all_of(characters, [&](const auto& entry) {
        const QList<quint32> glyphs = font.glyphIndexesForString(QString(QChar(entry.first)));
        return glyphs == QList<quint32>{entry.second};
    });
}

/// A file that takes the font along has this name in it.
QString nameFor(const FontSpec& font) {
    QString name = fontFamily(font.Name).family + QStringLiteral(" on a page");
    if (font.Bold) name += QStringLiteral(", bold");
    if (font.Italic) name += QStringLiteral(", slanted");
    return name;
}

/// Makes the font under this name. False if the font system doesn't take it.
bool makeReduced(const FontSpec& font, const QString& family) {
    const QRawFont whole = QRawFont::fromFont(styledFont(font));
    const CharacterGlyphs characters = charactersOf(whole, fontFace(font));
    FontTables tables = outlineTables(whole);
    const auto names = tables.find("name");
    if (names == tables.end() || characters.empty()) return false;
    names->second = renamed(std::move(names->second), family);
    tables.emplace("cmap", characterMap(characters));
    QFontDatabase::addApplicationFontFromData(fontFile(tables));
    const QRawFont taken = QRawFont::fromFont(styledFont(font, family));
    return taken.familyName() == family && hasGlyphs(taken, characters);
}

/// Windows reads fonts in its own way, which need not know this form of a font.
bool isReadByFreeType() { return QGuiApplication::platformName() != QLatin1String("windows"); }

} // namespace

QFont pageFont(const FontSpec& font) {
    static std::map<QString, bool> known;
    if (!isReadByFreeType()) return styledFont(font);
    const QString family = nameFor(font);
    const auto [entry, isNew] = known.try_emplace(family, false);
    if (isNew) entry->second = makeReduced(font, family);
    return entry->second ? styledFont(font, family) : styledFont(font);
}

} // namespace toolkit
