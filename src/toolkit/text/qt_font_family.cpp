#include "toolkit/text/qt_font_family.h"

#include <algorithm>
#include <array>
#include <deque>
#include <utility>

#include <QtGui/QFontDatabase>

#include "toolkit/base/ansi.h"
#include "toolkit/picture/embedded_file.h"

namespace toolkit {
namespace {

struct Substitute {
    std::string_view name;
    const char* family = nullptr;
    std::string_view neededPictures; ///< codes that a picture font must have to be of use
};

constexpr std::array<Substitute, 4> substitutes{{
    {"Arial", "Liberation Sans", ""},
    {"Arial Narrow", "Liberation Sans Narrow", ""},
    {"Wingdings", "Zevlin Marks", "\xFC\x6E\xA1"},
    {"Symbol", "Zevlin Suits", "\xA7\xA8\xA9\xAA"},
}};

quint32 glyphAt(const QRawFont& font, char32_t value) {
    const auto character = static_cast<char16_t>(value);
    const QList<quint32> glyphs = font.glyphIndexesForString(QString(QChar(character)));
    return glyphs.isEmpty() ? 0 : glyphs.front();
}

quint32 pictureGlyph(const QRawFont& font, char character) {
    return glyphAt(font, pictureBlock + char32_t{code(character)});
}

void registerEmbeddedFonts() {
    for (const char* name : {"/fonts/zevlin-marks-regular.ttf", "/fonts/zevlin-marks-bold.ttf",
                             "/fonts/zevlin-suits.ttf", "/fonts/zevlin-print-suits.ttf"}) {
        const auto data = embeddedFile(name);
        QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(
            reinterpret_cast<const char*>(data.data()), static_cast<qsizetype>(data.size())));
    }
}

// Asked for a family that isn't there, the font system silently hands out another; only the font
// itself tells which. A foundry may stand behind the name in brackets.
QString familyUsed(const QString& family) {
    const QString used = QRawFont::fromFont(plainFont(family)).familyName();
    return used.section(QStringLiteral(" ["), 0, 0);
}

bool isInstalled(const QString& family) {
    return familyUsed(family).compare(family, Qt::CaseInsensitive) == 0;
}

bool hasPictures(const QString& family, std::string_view pictures) {
    const QRawFont font = QRawFont::fromFont(plainFont(family));
    return std::ranges::all_of(pictures,
                               [&](char character) { return pictureGlyph(font, character) != 0; });
}

const Substitute* substituteFor(std::string_view name) {
    const auto found = std::ranges::find_if(
        substitutes, [&](const Substitute& entry) { return equalWithoutCase(entry.name, name); });
    return found == substitutes.end() ? nullptr : &*found;
}

FontFamily resolve(std::string_view name) {
    const QString asked = QString::fromStdString(utf8FromAnsi(name));
    const Substitute* substitute = substituteFor(name);
    const std::string_view pictures = substitute != nullptr ? substitute->neededPictures : "";
    const auto encoding = pictures.empty() ? FontEncoding::CodePage : FontEncoding::Symbol;
    if (isInstalled(asked) && hasPictures(asked, pictures))
        return {std::string(name), asked, encoding};
    if (substitute != nullptr && isInstalled(QString::fromLatin1(substitute->family)))
        return {std::string(name), QString::fromLatin1(substitute->family), encoding};
    const QString used = familyUsed(asked);
    return {ansiFromUtf8(used.toStdString()), used, FontEncoding::CodePage};
}

} // namespace

const FontFamily& fontFamily(std::string_view name) {
    using Entry = std::pair<std::string, FontFamily>;
    static std::deque<Entry> known;
    const auto found = std::ranges::find(known, name, &Entry::first);
    if (found != known.end()) return found->second;
    if (known.empty()) registerEmbeddedFonts();
    constexpr std::string_view usual = "Arial";
    return known.emplace_back(name, resolve(name.empty() ? usual : name)).second;
}

QFont plainFont(const QString& family) {
    QFont font;
    font.setFamilies({family});
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(
        QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

quint32 glyphOf(const QRawFont& font, FontEncoding encoding, char character) {
    const quint32 picture = pictureGlyph(font, character);
    if (encoding == FontEncoding::Symbol && picture != 0) return picture;
    const char32_t value =
        encoding == FontEncoding::Symbol ? char32_t{code(character)} : unicodeOf(character);
    const quint32 glyph = glyphAt(font, value);
    return glyph != 0 ? glyph : picture;
}

} // namespace toolkit
