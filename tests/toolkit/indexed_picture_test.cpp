#include <cstring>
#include <random>

#include <QtCore/QByteArray>
#include <gtest/gtest.h>

#include "toolkit/failure_of.h"
#include "toolkit/picture/embedded_file.h"
#include "toolkit/picture/indexed_picture.h"

namespace toolkit {
namespace {

using test::failureOf;

std::span<const std::byte> bytesOf(const QByteArray& data) {
    return std::as_bytes(std::span(data.constData(), static_cast<std::size_t>(data.size())));
}

QByteArray number(int value) {
    QByteArray bytes;
    return bytes.append(static_cast<char>(value & 0xFF)).append(static_cast<char>(value >> 8));
}

// 3 x 2 pixels of two colours.
QByteArray content() {
    return number(3) + number(2) + number(2) +
           QByteArray::fromHex("FFFFFF"
                               "C31119") +
           QByteArray::fromHex("000100"
                               "010101");
}

std::optional<int> failureOfContent(const QByteArray& content) {
    const QByteArray data = qCompress(content);
    return failureOf([&] { (void)decodePicture(bytesOf(data)); });
}

TEST(IndexedPicture, SizePaletteAndPixelsComeBack) {
    const QByteArray data = qCompress(content());
    const IndexedPicture picture = decodePicture(bytesOf(data));
    EXPECT_EQ(picture.width, 3);
    EXPECT_EQ(picture.height, 2);
    EXPECT_EQ(picture.palette, (std::vector<std::uint32_t>{0xFFFFFFFF, 0xFFC31119}));
    EXPECT_EQ(picture.indices, (std::vector<std::uint8_t>{0, 1, 0, 1, 1, 1}));
}

TEST(IndexedPicture, SidesAbove255ArePossible) {
    const QByteArray data = qCompress(number(300) + number(2) + number(1) +
                                      QByteArray::fromHex("000000") + QByteArray(600, '\0'));
    EXPECT_EQ(decodePicture(bytesOf(data)).width, 300);
}

TEST(IndexedPicture, ContentCutAnywhereFails) {
    for (qsizetype length = 0; length < content().size(); ++length)
        EXPECT_EQ(failureOfContent(content().first(length)), 481) << length;
    EXPECT_EQ(failureOfContent(content()), std::nullopt);
}

TEST(IndexedPicture, ContentTooLongFails) { EXPECT_EQ(failureOfContent(content() + '\0'), 481); }

TEST(IndexedPicture, DataCutAnywhereFails) {
    const QByteArray data = qCompress(content());
    for (qsizetype length = 0; length < data.size() - 4; ++length)
        EXPECT_EQ(failureOf([&] { (void)decodePicture(bytesOf(data.first(length))); }), 481);
}

TEST(IndexedPicture, APixelBeyondThePaletteFails) {
    QByteArray damaged = content();
    damaged.back() = 2;
    EXPECT_EQ(failureOfContent(damaged), 481);
}

TEST(IndexedPicture, ImpossibleSizesFail) {
    const QByteArray rest = content().mid(6);
    for (const auto& [width, height, colors] :
         {std::array{0, 2, 2}, std::array{3, 0, 2}, std::array{3, 2, 0},
          std::array{0xFFFF, 0xFFFF, 2}, std::array{3, 2, 257}})
        EXPECT_EQ(failureOfContent(number(width) + number(height) + number(colors) + rest), 481);
}

TEST(IndexedPicture, AClaimOfMuchMemoryFailsAtOnce) {
    QByteArray data = qCompress(content());
    data[0] = '\x7F';
    EXPECT_EQ(failureOf([&] { (void)decodePicture(bytesOf(data)); }), 481);
}

TEST(IndexedPicture, RandomBytesNeverDecode) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        QByteArray data(static_cast<qsizetype>(random() % 60), '\0');
        for (char& byte : data) byte = static_cast<char>(random());
        EXPECT_EQ(failureOf([&] { (void)decodePicture(bytesOf(data)); }), 481);
    }
}

TEST(IndexedPicture, RandomDamageFailsOrKeepsAllBounds) {
    std::mt19937 random(2);
    for (int round = 0; round < 2000; ++round) {
        QByteArray damaged = content();
        damaged[static_cast<qsizetype>(random() % 12)] = static_cast<char>(random());
        const QByteArray data = qCompress(damaged);
        try {
            const IndexedPicture picture = decodePicture(bytesOf(data));
            EXPECT_EQ(picture.indices.size(), static_cast<std::size_t>(picture.width) *
                                                  static_cast<std::size_t>(picture.height));
            for (const std::uint8_t index : picture.indices)
                EXPECT_LT(index, picture.palette.size());
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 481);
        }
    }
}

TEST(EmbeddedFile, FontsLieInTheProgramAsTheyAre) {
    const auto font = embeddedFile("/fonts/zevlin-suits.ttf");
    ASSERT_GT(font.size(), 1000U);
    EXPECT_EQ(std::memcmp(font.data(), "\0\1\0\0", 4), 0);
}

TEST(EmbeddedFile, TheCardIsThereInFullAndHalfSize) {
    const IndexedPicture full = decodePicture(embeddedFile("/card/full.bin"));
    EXPECT_EQ(full.width, 2396);
    EXPECT_EQ(full.height, 2473);
    const IndexedPicture half = decodePicture(embeddedFile("/card/half.bin"));
    EXPECT_EQ(half.width, 1198);
    EXPECT_EQ(half.height, 1237);
    // The top left pixel is paper in both.
    EXPECT_EQ(full.palette[full.indices.front()], half.palette[half.indices.front()]);
}

TEST(EmbeddedFile, AnUnknownNameIsFailure53) {
    EXPECT_EQ(failureOf([] { (void)embeddedFile("/fonts/none.ttf"); }), 53);
    EXPECT_EQ(failureOf([] { (void)embeddedFile("/fonts"); }), 53);
    EXPECT_EQ(failureOf([] { (void)embeddedFile(""); }), 53);
}

} // namespace
} // namespace toolkit
