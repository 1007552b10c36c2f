// The fonts that a page in a file takes along.
#include "toolkit/text/qt_page_font.h"

#include <string>

#include <QtGui/QGuiApplication>
#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>
#include <gtest/gtest.h>

#include "support/pdf_content.h"
#include "toolkit/print/pdf_document.h"
#include "toolkit/text/qt_font_face.h"

namespace toolkit::test {
namespace {

using zev::test::isInPdf;

constexpr char16_t cyrillicZhe = 0x0416;

QRawFont atOneUnit(const QFont& font) {
    QRawFont raw = QRawFont::fromFont(font);
    raw.setPixelSize(raw.unitsPerEm());
    return raw;
}

std::string nameOf(const FontSpec& font) {
    return font.Name + (font.Bold ? " bold" : "") + (font.Italic ? " italic" : "");
}

/// In units of the font, 2,048 to the em. The hints of the font itself move points by up to 42 of
/// them, a bolder style by twice as many.
void expectSameOutline(const QPainterPath& one, const QPainterPath& other,
                       const std::string& what) {
    constexpr double hintUnits = 42;
    ASSERT_EQ(one.elementCount(), other.elementCount()) << what;
    for (int i = 0; i < one.elementCount(); ++i) {
        EXPECT_EQ(one.elementAt(i).type, other.elementAt(i).type) << what;
        EXPECT_NEAR(one.elementAt(i).x, other.elementAt(i).x, hintUnits) << what;
        EXPECT_NEAR(one.elementAt(i).y, other.elementAt(i).y, hintUnits) << what;
    }
}

void expectSameGlyphs(const FontSpec& font) {
    const QRawFont page = atOneUnit(pageFont(font));
    const QRawFont whole = atOneUnit(styledFont(font));
    ASSERT_NE(page.familyName(), whole.familyName()) << nameOf(font);
    EXPECT_EQ(page.unitsPerEm(), whole.unitsPerEm());
    for (const quint32 glyph : fontFace(font).glyphs) {
        expectSameOutline(page.pathForGlyph(glyph), whole.pathForGlyph(glyph),
                          nameOf(font) + ", glyph " + std::to_string(glyph));
        EXPECT_EQ(page.advancesForGlyphIndexes({glyph}), whole.advancesForGlyphIndexes({glyph}));
    }
}

std::string pageWith(const FontSpec& font, const std::string& text) {
    auto card = std::make_shared<CardRecording>();
    card->width = 100;
    card->height = 50;
    Label label;
    label.Move(0, 150, 1200, 900);
    label.Font = font;
    label.Caption = text;
    label.Clips = false;
    card->labels = {label};
    const Page page{.width = 612, .height = 792, .cards = {{card, 0, 0, 300, 150}}};
    return pdfDocument({&page, 1}, "");
}

TEST(PageFont, HasTheGlyphsOfEachStyle) {
    for (const char* name : {"Arial", "Arial Narrow"})
        for (const bool bold : {false, true})
            for (const bool italic : {false, true})
                expectSameGlyphs({.Name = name, .Size = 11, .Bold = bold, .Italic = italic});
}

// No file is slanted or, among the suits, bold: the font system makes that of the upright one.
TEST(PageFont, HasTheGlyphsOfStylesWithoutAFile) {
    for (const char* name : {"Wingdings", "Symbol"})
        for (const bool bold : {false, true})
            for (const bool italic : {false, true})
                expectSameGlyphs({.Name = name, .Size = 11, .Bold = bold, .Italic = italic});
}

TEST(PageFont, KnowsNoOtherCharactersThanTheCodePage) {
    const FontSpec font{.Name = "Arial", .Size = 11};
    const QRawFont page = QRawFont::fromFont(pageFont(font));
    const QRawFont whole = QRawFont::fromFont(styledFont(font));
    for (const char16_t character : {u'A', u'\xFF', u'\x20AC', u'\x2122'}) {
        EXPECT_TRUE(page.supportsCharacter(QChar(character)));
        EXPECT_EQ(page.glyphIndexesForString(QString(QChar(character))),
                  whole.glyphIndexesForString(QString(QChar(character))));
    }
    EXPECT_TRUE(whole.supportsCharacter(QChar(cyrillicZhe)));
    EXPECT_FALSE(page.supportsCharacter(QChar(cyrillicZhe)));
}

TEST(PageFont, HasNoHints) {
    const FontSpec font{.Name = "Arial", .Size = 11};
    for (const char* table : {"fpgm", "prep", "cvt "}) {
        EXPECT_FALSE(QRawFont::fromFont(styledFont(font)).fontTable(table).isEmpty());
        EXPECT_TRUE(QRawFont::fromFont(pageFont(font)).fontTable(table).isEmpty());
    }
}

TEST(PageFont, IsMadeOnceForAllSizes) {
    const QFont small = pageFont({.Name = "Arial", .Size = 11});
    int made = 0;
    const auto counting =
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, [&] { ++made; });
    EXPECT_EQ(pageFont({.Name = "Arial", .Size = 30}), small);
    EXPECT_EQ(made, 0);
    QObject::disconnect(counting);
}

TEST(PageFont, AFileTellsItByTheFontsOwnName) {
    const std::string page = pageWith({.Name = "Arial", .Size = 11, .Bold = true}, "A");
    EXPECT_TRUE(isInPdf(page, "+LiberationSans-Bold\n"));
    EXPECT_TRUE(isInPdf(page, "/BaseFont /LiberationSans-Bold\n"));
}

TEST(PageFont, AFileTakesItAlong) {
    const std::string file = zev::test::unpackedPdf(pageWith({.Name = "Arial", .Size = 11}, "A"));
    constexpr std::string_view end("\0o\0n\0 \0a\0 \0p\0a\0g\0e", 18);
    EXPECT_TRUE(isInPdf(file, end));
}

// The name is in the file, too, which must not tell which fonts were needed before.
TEST(PageFont, IsCalledByWhatItIsMadeOf) {
    const FontSpec font{.Name = "Arial", .Size = 11};
    const FontSpec slanted{.Name = "Symbol", .Size = 11, .Bold = true, .Italic = true};
    EXPECT_EQ(QRawFont::fromFont(pageFont(font)).familyName(), "Liberation Sans on a page");
    EXPECT_EQ(QRawFont::fromFont(pageFont(slanted)).familyName(),
              "Zevlin Suits on a page, bold, slanted");
}

TEST(PageFont, AFileTellsWhichCharactersItsGlyphsAre) {
    EXPECT_TRUE(isInPdf(pageWith({.Name = "Arial", .Size = 11}, "\x80"), "<20AC>"));
    EXPECT_TRUE(isInPdf(pageWith({.Name = "Arial", .Size = 11}, "\xE9"), "<00E9>"));
    // One glyph with the soft hyphen.
    EXPECT_TRUE(isInPdf(pageWith({.Name = "Arial", .Size = 11}, "-"), "<002D>"));
    EXPECT_TRUE(isInPdf(pageWith({.Name = "Symbol", .Size = 11}, "\xA9"), "<2665>"));
    EXPECT_TRUE(isInPdf(pageWith({.Name = "Zevlin Print Suits", .Size = 11}, "\xA9"), "<2665>"));
    EXPECT_TRUE(isInPdf(pageWith({.Name = "Wingdings", .Size = 11}, "\xFC"), "<2713>"));
}

} // namespace
} // namespace toolkit::test
