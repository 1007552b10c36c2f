#include "toolkit/text/qt_font_file.h"

#include <array>
#include <vector>

#include <QtCore/QtEndian>
#include <QtGui/QRawFont>

namespace toolkit {
namespace {

void append16(QByteArray& data, qsizetype number) {
    std::array<char, 2> bytes{};
    qToBigEndian(static_cast<quint16>(number), bytes.data());
    data.append(bytes.data(), bytes.size());
}

void append32(QByteArray& data, qsizetype number) {
    std::array<char, 4> bytes{};
    qToBigEndian(static_cast<quint32>(number), bytes.data());
    data.append(bytes.data(), bytes.size());
}

qsizetype number16(const QByteArray& data, qsizetype place) {
    return qFromBigEndian<quint16>(data.constData() + place);
}

QByteArray sixteenBits(QStringView text) {
    QByteArray wide;
    for (const QChar character : text) append16(wide, character.unicode());
    return wide;
}

/// Of the names of a font, those by which the font system finds it.
bool isFamily(qsizetype name) {
    constexpr qsizetype family = 1;
    constexpr qsizetype typographicFamily = 16;
    constexpr qsizetype wwsFamily = 21;
    return name == family || name == typographicFamily || name == wwsFamily;
}

} // namespace

FontTables outlineTables(const QRawFont& font) {
    const bool isVariable = !font.fontTable("fvar").isEmpty();
    if (isVariable) return {};
    FontTables tables;
    for (const char* tag :
         {"CFF ", "OS/2", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "name", "post"}) {
        QByteArray table = font.fontTable(tag);
        if (!table.isEmpty()) tables.emplace(tag, std::move(table));
    }
    return tables;
}

QByteArray renamed(QByteArray names, QStringView family) {
    constexpr qsizetype headLength = 6;
    constexpr qsizetype recordLength = 12;
    constexpr qsizetype macintosh = 1;
    if (names.size() < headLength) return names;
    const qsizetype count = number16(names, 2);
    const qsizetype texts = number16(names, 4);
    const qsizetype end = names.size() - texts;
    const QByteArray wide = sixteenBits(family);
    const QByteArray narrow = family.toLatin1();
    constexpr qsizetype most = 0xFFFF;
    if (names.size() < headLength + count * recordLength || end < 0 || end + wide.size() > most)
        return names;
    for (qsizetype i = 0; i < count; ++i) {
        char* record = names.data() + headLength + i * recordLength;
        if (!isFamily(qFromBigEndian<quint16>(record + 6))) continue;
        const bool isNarrow = qFromBigEndian<quint16>(record) == macintosh;
        qToBigEndian(static_cast<quint16>(isNarrow ? narrow.size() : wide.size()), record + 8);
        qToBigEndian(static_cast<quint16>(isNarrow ? end + wide.size() : end), record + 10);
    }
    return names + wide + narrow;
}

QByteArray characterMap(const std::map<char16_t, quint16>& glyphs) {
    if (glyphs.empty()) return {};
    const qsizetype first = glyphs.begin()->first;
    const qsizetype count = glyphs.rbegin()->first - first + 1;
    std::vector<quint16> row(static_cast<std::size_t>(count));
    for (const auto& [character, glyph] : glyphs)
        row[static_cast<std::size_t>(character - first)] = glyph;
    constexpr qsizetype headLength = 12;
    constexpr qsizetype arrayHead = 20;
    QByteArray table;
    table.reserve(headLength + arrayHead + 2 * count);
    // One map, of Windows' platform, for all of Unicode, behind this head.
    for (const qsizetype number : {0, 1, 3, 10}) append16(table, number);
    append32(table, headLength);
    // A row of glyphs without gaps.
    constexpr qsizetype trimmedArray = 10;
    append16(table, trimmedArray);
    append16(table, 0);
    for (const qsizetype number : {arrayHead + 2 * count, qsizetype{0}, first, count})
        append32(table, number);
    for (const quint16 glyph : row) append16(table, glyph);
    return table;
}

QByteArray fontFile(const FontTables& tables) {
    constexpr qsizetype headLength = 12;
    constexpr qsizetype entryLength = 16;
    constexpr qsizetype boundary = 4;
    const auto count = static_cast<qsizetype>(tables.size());
    QByteArray file = tables.contains("CFF ") ? QByteArray("OTTO") : QByteArray("\0\1\0\0", 4);
    append16(file, count);
    // Who reads it finds a table without the aid of these, and the sums of the tables unasked.
    file.append(6, '\0');
    qsizetype place = headLength + count * entryLength;
    for (const auto& [tag, table] : tables) {
        file.append(tag);
        append32(file, 0);
        append32(file, place);
        append32(file, table.size());
        place += (table.size() + boundary - 1) / boundary * boundary;
    }
    file.reserve(place);
    for (const auto& [tag, table] : tables) {
        file.append(table);
        file.append((boundary - file.size() % boundary) % boundary, '\0');
    }
    return file;
}

} // namespace toolkit
