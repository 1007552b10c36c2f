#include <algorithm>
#include <cmath>

#include <QtGui/QFontInfo>
#include <QtGui/QFontMetricsF>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <gtest/gtest.h>

#include "toolkit/base/twips.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/text/draw_text.h"
#include "toolkit/text/font.h"
#include "toolkit/text/text_painter.h"
#include "toolkit/window/screen.h"

namespace toolkit {
namespace {

const FontSpec textFont{.Name = "Arial", .Size = 11};

Bitmap drawn(std::string_view text, float x, float y, const FontSpec& font = textFont,
             Color color = black) {
    Bitmap bitmap(300, 60);
    drawText(bitmap, x, y, font, color, text);
    return bitmap;
}

struct Box {
    int left = 0;
    int top = 0;
    int right = 0; // one past the last
    int bottom = 0;
};

// What isn't paper; all zero for an empty picture.
Box inkOf(const Bitmap& bitmap) {
    Box box{bitmap.width(), bitmap.height(), 0, 0};
    for (int y = 0; y < bitmap.height(); ++y)
        for (int x = 0; x < bitmap.width(); ++x)
            if (bitmap.pixel(x, y) != white)
                box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
                       std::max(box.bottom, y + 1)};
    return box.right == 0 ? Box{} : box;
}

bool samePixels(const Bitmap& one, const Bitmap& other) {
    return std::equal(one.row(0), one.row(0) + one.width() * one.height(), other.row(0));
}

class TextPainter : public testing::Test {
  protected:
    void SetUp() override {
        ScreenOverrides overrides;
        overrides.twipsPerPixel = 15;
        overrideScreen(overrides);
    }
    void TearDown() override { overrideScreen({}); }
};

TEST_F(TextPainter, TextStandsOnItsRoundedBaseLine) {
    const float ascent = textAscent(textFont) / 15;
    for (const float y : {10.0F, 10.4F, 10.6F}) {
        const Box ink = inkOf(drawn("H", 5, y));
        EXPECT_EQ(ink.bottom, static_cast<int>(std::lround(y + ascent))) << y;
    }
}

TEST_F(TextPainter, AGlyphStandsWhereTheMeasuresSay) {
    const std::string text = "Weak jump shift";
    const float width = textWidth(textFont, text) / 15;
    const Box single = inkOf(drawn("|", 20 + width, 5));
    const Box behind = inkOf(drawn(std::string(text.size(), '\xA0'), 20, 5));
    EXPECT_EQ(behind.right, 0);
    Bitmap both = drawn(text + "|", 20, 5);
    both.fill(0, 0, single.left, 60, white);
    const Box last = inkOf(both);
    EXPECT_NEAR(last.left, single.left, 1);
    EXPECT_NEAR(last.right, single.right, 1);
}

TEST_F(TextPainter, BlanksOfBothKindsPaintNothingAndAdvanceAlike) {
    EXPECT_EQ(inkOf(drawn("  \xA0", 20, 5)).right, 0);
    EXPECT_TRUE(samePixels(drawn("a b", 20, 5), drawn("a\xA0"
                                                      "b",
                                                      20, 5)));
}

TEST_F(TextPainter, AFractionOfAPixelMattersAcross) {
    EXPECT_FALSE(samePixels(drawn("H", 20, 5), drawn("H", 20.5F, 5)));
    EXPECT_TRUE(samePixels(drawn("H", 20, 5), drawn("H", 20, 5.001F)));
}

TEST_F(TextPainter, TextHasItsColourAndItsEdgesAreMixedWithThePaper) {
    const Color red = rgb(195, 17, 25);
    const Bitmap bitmap = drawn("H", 20, 5, {.Name = "Arial", .Size = 30}, red);
    bool solid = false;
    for (int y = 0; y < bitmap.height(); ++y)
        for (int x = 0; x < bitmap.width(); ++x) solid = solid || bitmap.pixel(x, y) == red;
    EXPECT_TRUE(solid);
}

TEST_F(TextPainter, EdgesAreSmoothedInGreys) {
    const Bitmap bitmap = drawn("OWS8", 20.3F, 5);
    bool grey = false;
    for (int y = 0; y < bitmap.height(); ++y)
        for (int x = 0; x < bitmap.width(); ++x) {
            const Color color = *bitmap.pixel(x, y);
            EXPECT_EQ(redOf(color), greenOf(color));
            EXPECT_EQ(redOf(color), blueOf(color));
            grey = grey || (color != white && color != black);
        }
    EXPECT_TRUE(grey);
}

TEST_F(TextPainter, SizesBetweenWholePixelsAreDrawnAsAskedFor) {
    // Close enough for the baseline to fall on the same row.
    const FontSpec smaller{.Name = "Arial", .Size = 30.0F};
    const FontSpec larger{.Name = "Arial", .Size = 30.2F};
    ASSERT_EQ(inkOf(drawn("H", 20, 5, smaller)).bottom, inkOf(drawn("H", 20, 5, larger)).bottom);
    EXPECT_FALSE(samePixels(drawn("H", 20, 5, smaller), drawn("H", 20, 5, larger)));
}

TEST_F(TextPainter, TheOldestOfVeryManySizesLooksTheSame) {
    const auto sized = [](int number) {
        return FontSpec{.Name = "Arial", .Size = 5 + static_cast<float>(number) / 20};
    };
    const Bitmap first = drawn("H", 20, 5, sized(0));
    for (int number = 1; number < 600; ++number) (void)drawn("H", 20, 5, sized(number));
    EXPECT_TRUE(samePixels(drawn("H", 20, 5, sized(0)), first));
    EXPECT_FALSE(samePixels(drawn("H", 20, 5, sized(300)), first));
}

TEST_F(TextPainter, ItalicLeansAndBoldIsHeavier) {
    const auto weight = [](const Bitmap& bitmap) {
        long darkness = 0;
        for (int y = 0; y < bitmap.height(); ++y)
            for (int x = 0; x < bitmap.width(); ++x) darkness += 255 - redOf(*bitmap.pixel(x, y));
        return darkness;
    };
    FontSpec bold = textFont;
    bold.Bold = true;
    FontSpec italic = textFont;
    italic.Italic = true;
    EXPECT_GT(static_cast<double>(weight(drawn("Ill", 20, 5, bold))),
              1.2 * static_cast<double>(weight(drawn("Ill", 20, 5))));
    EXPECT_GT(inkOf(drawn("l", 20, 5, italic)).right, inkOf(drawn("l", 20, 5)).right);
}

TEST_F(TextPainter, MarksAndSuitsLookDifferentFromEachOther) {
    const FontSpec marks{.Name = "Wingdings", .Size = 18};
    const FontSpec suits{.Name = "Symbol", .Size = 18};
    EXPECT_FALSE(samePixels(drawn("\xFC", 20, 5, marks), drawn("\xA1", 20, 5, marks)));
    EXPECT_FALSE(samePixels(drawn("\xFC", 20, 5, marks), drawn("\x6E", 20, 5, marks)));
    EXPECT_FALSE(samePixels(drawn("\xA7", 20, 5, suits), drawn("\xAA", 20, 5, suits)));
    EXPECT_FALSE(samePixels(drawn("\xA8", 20, 5, suits), drawn("\xA9", 20, 5, suits)));
    EXPECT_GT(inkOf(drawn("\xA9", 20, 5, suits)).right, 20);
}

TEST_F(TextPainter, TextIsCutAtTheEdgesOfThePicture) {
    const Bitmap bitmap = drawn("\x97\x97H", -10, -5);
    EXPECT_EQ(inkOf(bitmap).left, 0);
    EXPECT_EQ(inkOf(bitmap).top, 0);
    Bitmap empty;
    drawText(empty, 0, 0, textFont, black, "H");
    EXPECT_TRUE(empty.empty());
}

TEST_F(TextPainter, ScaledPaintersDrawAtTheirOwnResolution) {
    const auto drawnAt = [](double ratio) {
        QImage image(QSize(100, 40) * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawRun(painter, QPointF(10, 30), textFont, 1.0 / 15, black, "HM");
        painter.end();
        return image;
    };
    const QImage twice = drawnAt(2);
    const QImage enlarged = drawnAt(1).scaled(twice.size());
    int bottom = 0;
    bool different = false;
    for (int y = 0; y < twice.height(); ++y)
        for (int x = 0; x < twice.width(); ++x) {
            if (twice.pixel(x, y) != qRgb(255, 255, 255)) bottom = y + 1;
            different = different || twice.pixel(x, y) != enlarged.pixel(x, y);
        }
    EXPECT_EQ(bottom, 60);
    EXPECT_TRUE(different);
}

TEST_F(TextPainter, WidgetsGetTheSameFace) {
    const QFont font = qtFont({.Name = "Arial Narrow", .Size = 11, .Bold = true});
    // A system that has the font, or another one by its name, gives that.
    const std::string family = QFontInfo(font).family().toStdString();
    EXPECT_TRUE(family == "Arial Narrow" || family == "Liberation Sans Narrow") << family;
    EXPECT_TRUE(font.bold());
    EXPECT_FALSE(font.italic());
    EXPECT_FALSE(font.kerning());
    EXPECT_EQ(font.hintingPreference(), QFont::PreferNoHinting);
    EXPECT_NE(font.styleStrategy() & QFont::NoSubpixelAntialias, 0);
}

TEST_F(TextPainter, TextInWidgetsIsAsLongAsInLabels) {
    const std::string text = "AVAVA Weak jump shift";
    for (const float size : {4.675F, 6.5F, 8.25F, 9.0F, 11.0F, 18.0F}) {
        const FontSpec font{.Name = "Arial", .Size = size};
        const double shown =
            QFontMetricsF(qtFont(font)).horizontalAdvance(QString::fromStdString(text));
        EXPECT_NEAR(shown, textWidth(font, text) / 15, 0.4) << size;
    }
}

} // namespace
} // namespace toolkit
