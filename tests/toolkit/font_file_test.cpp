// Font files put together from tables.
#include "toolkit/text/qt_font_file.h"

#include <filesystem>

#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>
#include <gtest/gtest.h>

#include "toolkit/text/qt_font_face.h"

namespace toolkit::test {
namespace {

QByteArray bytes(std::initializer_list<int> values) {
    QByteArray data;
    for (const int value : values) data.append(static_cast<char>(value));
    return data;
}

/// One name: of Windows' platform, or of the other with one byte to the character.
QByteArray namesWith(int platform, int name, const QByteArray& text) {
    return bytes({0, 0, 0, 1, 0, 18, 0, platform, 0, 1, 0, 0, 0, name, 0,
                  static_cast<int>(text.size()), 0, 0}) +
           text;
}

TEST(FontFile, ACharacterMapIsARowOfGlyphs) {
    const QByteArray map = characterMap({{u'a', 0x0102}, {u'c', 3}});
    EXPECT_EQ(map, bytes({0, 0, 0, 1, 0, 3, 0, 10, 0, 0, 0, 12}) +
                       bytes({0, 10, 0, 0, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, 'a', 0, 0, 0, 3}) +
                       bytes({1, 2, 0, 0, 0, 3}));
}

TEST(FontFile, WithoutCharactersThereIsNoMap) { EXPECT_TRUE(characterMap({}).isEmpty()); }

TEST(FontFile, AFamilyIsRenamedInItsOwnEncoding) {
    for (const int name : {1, 16, 21})
        EXPECT_EQ(renamed(namesWith(3, name, QByteArray("\0O", 2)), u"New"),
                  bytes({0, 0, 0, 1, 0, 18, 0, 3, 0, 1, 0, 0, 0, name, 0, 6, 0, 2}) +
                      QByteArray("\0O\0N\0e\0wNew", 11));
    EXPECT_EQ(renamed(namesWith(1, 1, "O"), u"New"),
              bytes({0, 0, 0, 1, 0, 18, 0, 1, 0, 1, 0, 0, 0, 1, 0, 3, 0, 7}) +
                  QByteArray("O\0N\0e\0wNew", 10));
}

TEST(FontFile, AFamilyMayHaveAnyLetters) {
    EXPECT_TRUE(renamed(namesWith(3, 1, ""), u"\u00E9\u4E00")
                    .endsWith(bytes({0, 0xE9, 0x4E, 0, 0xE9, '?'})));
}

TEST(FontFile, OtherNamesStay) {
    const QByteArray names = namesWith(1, 6, "O");
    EXPECT_TRUE(renamed(names, u"New").startsWith(names));
}

TEST(FontFile, ATableOfNamesThatEndsTooSoonIsLeftAsItIs) {
    const QByteArray whole = namesWith(3, 1, "");
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_EQ(renamed(whole.first(size), u"New"), whole.first(size)) << size;
}

TEST(FontFile, AFamilyBehindTheReachOfItsPlaceIsntRenamed) {
    const QByteArray names = namesWith(3, 1, QByteArray(0xFFFF, 'x'));
    EXPECT_EQ(renamed(names, u"New"), names);
}

TEST(FontFile, TablesBeginOnWholeWords) {
    EXPECT_EQ(fontFile({{"glyf", "abcde"}, {"head", "x"}}),
              bytes({0, 1, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0}) + "glyf" +
                  bytes({0, 0, 0, 0, 0, 0, 0, 44, 0, 0, 0, 5}) + "head" +
                  bytes({0, 0, 0, 0, 0, 0, 0, 52, 0, 0, 0, 1}) +
                  QByteArray("abcde\0\0\0x\0\0\0", 12));
    EXPECT_TRUE(fontFile({{"CFF ", "a"}}).startsWith("OTTO"));
}

/// Of a package that the printing of files depends on.
std::filesystem::path fontOfSystem(const char* name) {
    return std::filesystem::path("/usr/share/fonts") / name;
}

TEST(FontFile, HoldsOutlinesOfAnotherKind) {
    const auto path = fontOfSystem("opentype/urw-base35/P052-Roman.otf");
    if (!std::filesystem::exists(path)) GTEST_SKIP() << path << " isn't there";
    const QRawFont whole(QString::fromStdString(path.string()), 1000, QFont::PreferNoHinting);
    const auto glyph = static_cast<quint16>(whole.glyphIndexesForString("R").front());
    FontTables tables = outlineTables(whole);
    EXPECT_TRUE(tables.contains("CFF "));
    tables.emplace("cmap", characterMap({{u'R', glyph}}));
    const QRawFont reduced(fontFile(tables), 1000, QFont::PreferNoHinting);
    EXPECT_EQ(reduced.glyphIndexesForString("R").front(), glyph);
    EXPECT_EQ(reduced.pathForGlyph(glyph).elementCount(), whole.pathForGlyph(glyph).elementCount());
    EXPECT_EQ(reduced.boundingRect(glyph), whole.boundingRect(glyph));
}

TEST(FontFile, AFontOfVariableOutlinesHasNoTables) {
    const QRawFont font = QRawFont::fromFont(styledFont({.Name = "Arial", .Size = 11}));
    FontTables tables = outlineTables(font);
    ASSERT_FALSE(tables.empty());
    tables.emplace("cmap", characterMap({{u'A', 36}}));
    ASSERT_FALSE(outlineTables(QRawFont(fontFile(tables), 10)).empty());
    tables.emplace("fvar", "axes");
    const QRawFont variable(fontFile(tables), 10);
    ASSERT_TRUE(variable.isValid());
    EXPECT_TRUE(outlineTables(variable).empty());
}

TEST(FontFile, AFontOfAnotherFormatHasNoTables) {
    const auto path = fontOfSystem("type1/urw-base35/P052-Roman.t1");
    if (!std::filesystem::exists(path)) GTEST_SKIP() << path << " isn't there";
    const QRawFont font(QString::fromStdString(path.string()), 1000);
    ASSERT_TRUE(font.isValid());
    EXPECT_TRUE(outlineTables(font).empty());
}

} // namespace
} // namespace toolkit::test
