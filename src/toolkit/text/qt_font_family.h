// Which font family stands for a name. Internal: only the toolkit's own sources may include it.
#pragma once

#include <string>
#include <string_view>

#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QRawFont>

namespace toolkit {

/// How the bytes of a text name the characters of a family.
enum class FontEncoding {
    CodePage, ///< by the code page
    Symbol,   ///< by their own number, as pictures
};

/// Picture fonts have their glyphs in this private block of Unicode, at the number of the byte.
constexpr char32_t pictureBlock = 0xF000;

struct FontFamily {
    std::string nameGiven; ///< what the font system reports for the name asked for
    QString family;        ///< what Qt is asked for
    FontEncoding encoding = FontEncoding::CodePage;
};

/// The family for a name, looked up once in a run.
[[nodiscard]] const FontFamily& fontFamily(std::string_view name);

/// A font of this family as texts are measured and painted: unhinted, unkerned, antialiased in
/// greys.
[[nodiscard]] QFont plainFont(const QString& family);

/// The glyph of a byte, 0 where the font has none.
[[nodiscard]] quint32 glyphOf(const QRawFont& font, FontEncoding encoding, char character);

} // namespace toolkit
