#include "layout/calibration.h"

#include <cmath>

#include "support/form_test.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/text/draw_text.h"

namespace zev::test {
namespace {

constexpr int twips = 15; ///< per pixel

/// Edges in twips, found column by column and row by row.
struct Edges {
    float left = -1;
    float bottom = -1;
    float right = -1;
    float top = -1;
};

class Calibration : public FormTest {
  protected:
    static Edges scan(const toolkit::FontSpec& font, const std::string& caption) {
        const int width = static_cast<int>(toolkit::textWidth(font, caption)) / twips + 1;
        const int height = static_cast<int>(toolkit::textHeight(font)) / twips + 1;
        toolkit::Bitmap picture(width, height);
        toolkit::drawText(picture, 0, 0, font, toolkit::black, caption);
        Edges edges;
        for (int x = 0; x < width; ++x) {
            for (int y = 0; y < height; ++y) {
                if (picture.pixel(x, y) == toolkit::white) continue;
                const auto left = static_cast<float>(x * twips);
                const auto top = static_cast<float>(y * twips);
                if (edges.left < 0) edges.left = left;
                edges.right = left;
                edges.bottom = std::max(edges.bottom, top);
                edges.top = edges.top < 0 ? top : std::min(edges.top, top);
            }
        }
        return edges;
    }

    void expectOffsets(std::size_t kind, std::size_t size, const Edges& edges) {
        EXPECT_EQ(form.FontOffsets[kind][size][1], edges.left) << kind << ' ' << size;
        EXPECT_EQ(form.FontOffsets[kind][size][2], edges.bottom) << kind << ' ' << size;
    }

    [[nodiscard]] toolkit::FontSpec markFont(std::size_t size, bool bold) const {
        return {.Name = form.MarkFontName, .Size = form.MarkFontSize[size], .Bold = bold};
    }
};

TEST_F(Calibration, MeasuresChecksAndTexts) {
    start();
    for (std::size_t size = 1; size <= 3; ++size) {
        expectOffsets(1, size, scan(markFont(size, true), "\xFC"));
        expectOffsets(3, size,
                      scan({.Name = form.TextFontName, .Size = form.TextFontSize[size]}, "["));
    }
    EXPECT_GT(form.FontOffsets[3][3][2], form.FontOffsets[3][1][2]);
}

TEST_F(Calibration, MeasuresCirclesOnAllFourSides) {
    start();
    for (std::size_t size = 1; size <= 3; ++size) {
        const Edges edges = scan(markFont(size, false), "\xA1");
        ASSERT_GE(edges.left, 0);
        expectOffsets(2, size, edges);
        EXPECT_EQ(form.CircleAdjust[size][1], edges.right) << size;
        EXPECT_EQ(form.CircleAdjust[size][2], edges.top) << size;
    }
}

TEST_F(Calibration, MeasuresSquaresWhereMarksAreFilledIn) {
    start();
    form.mFillIn.Checked = true;
    GetOffsets(form);
    for (std::size_t size = 1; size <= 3; ++size)
        expectOffsets(1, size, scan(markFont(size, false), "n"));
}

TEST_F(Calibration, LeavesTheTemplatesWithoutACaption) {
    start();
    EXPECT_EQ(form.AMark[0].Caption, "");
    EXPECT_EQ(form.AText[0].Caption, "");
    EXPECT_EQ(form.AMark[0].Font.Name, form.MarkFontName);
    EXPECT_FALSE(form.AMark[0].Font.Bold);
    EXPECT_EQ(form.AText[0].Font.Name, form.TextFontName);
}

TEST_F(Calibration, WithoutInkFailsAndLeavesTheMeasure) {
    start();
    toolkit::Label label;
    label.Caption = " ";
    InkMeasure measure{.left = 1, .bottom = 2, .right = -1, .top = -1};
    EXPECT_FALSE(Calibrate(form, label, measure));
    EXPECT_EQ(measure.left, 1);
    EXPECT_EQ(measure.bottom, 2);
    EXPECT_EQ(measure.right, -1);
    EXPECT_EQ(measure.top, -1);
}

TEST_F(Calibration, WithoutInkKeepsTheEarlierOffsets) {
    start();
    const auto offsets = form.FontOffsets;
    form.AMark[0].ForeColor = toolkit::white;
    form.AText[0].ForeColor = toolkit::white;
    form.MarkFontSize = {0, 40, 50, 60};
    form.TextFontSize = {0, 40, 50, 60};
    GetOffsets(form);
    EXPECT_EQ(form.FontOffsets, offsets);
    for (std::size_t size = 1; size <= 3; ++size) {
        EXPECT_EQ(form.CircleAdjust[size][1], -1) << size;
        EXPECT_EQ(form.CircleAdjust[size][2], -1) << size;
    }
    form.AMark[0].ForeColor = form.AText[0].ForeColor = toolkit::black;
    GetOffsets(form);
    EXPECT_NE(form.FontOffsets, offsets);
}

TEST_F(Calibration, TracesTheMeasuringAndEachCharacter) {
    start();
    form.Trace.clear();
    GetOffsets(form);
    const auto lines = traceLines();
    EXPECT_EQ(lines.at(0), "GetOffsets");
    EXPECT_EQ(std::ranges::count(lines, "Calibrate"), 9);
    EXPECT_EQ(lines.size(), 10U);
}

TEST_F(Calibration, MeasuresRightAndTopOnlyWhereAsked) {
    start();
    toolkit::Label label;
    label.Caption = "[";
    InkMeasure measure{.right = 7, .top = 0};
    EXPECT_TRUE(Calibrate(form, label, measure));
    EXPECT_EQ(measure.right, 7);
    EXPECT_EQ(measure.top, 0);
    const Edges edges = scan(label.Font, "[");
    EXPECT_EQ(measure.left, edges.left);
    measure.right = measure.top = -1;
    EXPECT_TRUE(Calibrate(form, label, measure));
    EXPECT_EQ(measure.right, edges.right);
    EXPECT_EQ(measure.top, edges.top);
}

TEST_F(Calibration, IsMadeAnewForEverySize) {
    start();
    const float bottom = form.FontOffsets[3][3][2];
    for (float& size : form.TextFontSize) size *= 2;
    GetOffsets(form);
    EXPECT_GT(form.FontOffsets[3][3][2], bottom);
}

} // namespace
} // namespace zev::test
