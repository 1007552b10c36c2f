#include "toolkit/text/qt_run_picture.h"

#include <string>
#include <utility>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <gtest/gtest.h>

#include "toolkit/text/text_painter.h"

namespace toolkit {
namespace {

const FontSpec runFont{.Name = "Arial", .Size = 11};
constexpr double pixelsPerTwip = 1 / 15.0;

using Draw = decltype(drawRun);

QImage drawn(Draw& draw, QPointF place, std::string_view text, double ratio = 1) {
    QImage image(static_cast<int>(120 * ratio), static_cast<int>(40 * ratio), QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    draw(painter, place, runFont, pixelsPerTwip, black, text);
    return image;
}

int darknessOf(const QImage& image, int y) {
    int sum = 0;
    for (int x = 0; x < image.width(); ++x) sum += 255 - qRed(image.pixel(x, y));
    return sum;
}

/// The part of a row below the last whole one that stems fill.
double fractionBelow(const QImage& image, int row) {
    return static_cast<double>(darknessOf(image, row)) / darknessOf(image, row - 3);
}

TEST(RunPicture, StemsEndAtTheFractionOfTheirRow) {
    for (const double fraction : {0.25, 0.5, 0.8})
        EXPECT_NEAR(fractionBelow(drawn(drawRunBetweenRows, {20.3, 25 + fraction}, "IIII"), 25),
                    fraction, 0.03);
}

TEST(RunPicture, FractionIsOfTheDevicesOwnRows) {
    const QImage image = drawn(drawRunBetweenRows, {20, 25.25}, "IIII", 2);
    EXPECT_NEAR(fractionBelow(image, 50), 0.5, 0.03);
}

TEST(RunPicture, LooksTheSameEachTime) {
    const QImage first = drawn(drawRunBetweenRows, {20.3, 25.4}, "4 spades?");
    EXPECT_EQ(drawn(drawRunBetweenRows, {20.3, 25.4}, "4 spades?"), first);
    EXPECT_NE(drawn(drawRunBetweenRows, {20.3, 25.7}, "4 spades?"), first);
}

TEST(RunPicture, TheOldestOfVeryManyLooksTheSame) {
    const auto text = [](int number) { return "1NT: " + std::to_string(number); };
    const QImage first = drawn(drawRunBetweenRows, {20.3, 25.4}, text(0));
    QImage before = first;
    for (int number = 1; number < 600; ++number) {
        QImage next = drawn(drawRunBetweenRows, {20.3, 25.4}, text(number));
        ASSERT_NE(next, std::exchange(before, next)) << number;
    }
    EXPECT_EQ(drawn(drawRunBetweenRows, {20.3, 25.4}, text(0)), first);
}

TEST(RunPicture, BlanksPaintNothing) {
    QImage paper(120, 40, QImage::Format_RGB32);
    paper.fill(Qt::white);
    EXPECT_EQ(drawn(drawRunBetweenRows, {20, 25.5}, "  \xA0"), paper);
}

TEST(RunPicture, EndlessTextStandsOnARow) {
    const std::string endless(5000, 'I');
    EXPECT_EQ(drawn(drawRunBetweenRows, {20, 25.4}, endless), drawn(drawRun, {20, 25.4}, endless));
}

} // namespace
} // namespace toolkit
