// Font files put together from tables of another font, in the OpenType format. Internal: only the
// toolkit's own sources may include it.
#pragma once

#include <map>

#include <QtCore/QByteArray>
#include <QtCore/QStringView>

class QRawFont;

namespace toolkit {

/// A font's tables by their tags.
using FontTables = std::map<QByteArray, QByteArray>;

/// What a page needs of a font: names, measures and outlines. Without its map of characters, and
/// without what serves only hinting and typesetting. None of a font of variable outlines, which its
/// tables alone don't tell.
[[nodiscard]] FontTables outlineTables(const QRawFont& font);

/// The table of names with this family in the place of the font's own; the other names stay. It
/// comes back as it is if it can't be read.
[[nodiscard]] QByteArray renamed(QByteArray names, QStringView family);

/// The table that tells the glyphs of characters, in the format of the fewest steps for each.
[[nodiscard]] QByteArray characterMap(const std::map<char16_t, quint16>& glyphs);

[[nodiscard]] QByteArray fontFile(const FontTables& tables);

} // namespace toolkit
