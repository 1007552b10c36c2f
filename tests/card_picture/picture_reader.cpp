#include "card_picture/picture_reader.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtGui/QFont>
#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>
#include <gif_lib.h>

namespace card_picture {
namespace {

int word(const QByteArray& bytes, int at) {
    return static_cast<unsigned char>(bytes[at]) + 256 * static_cast<unsigned char>(bytes[at + 1]);
}

std::uint8_t byte(const QByteArray& bytes, int at) { return static_cast<std::uint8_t>(bytes[at]); }

const double markPoints[]{18, 22, 30};
const double textPoints[]{11, 14, 18};

double em(double points, int twips) { return points * 20 / twips; }

constexpr double unitsPerEm = 2048;
constexpr int pictureBlock = 0xF000;

QRawFont markFont(const char* file) {
    return {QString::fromLatin1(file), unitsPerEm, QFont::PreferNoHinting};
}
quint32 glyphOf(const QRawFont& font, int code) {
    return font.glyphIndexesForString(QString(QChar(pictureBlock + code))).front();
}

Glyph glyphInEms(const char* file, int code) {
    const QRawFont font = markFont(file);
    const quint32 glyph = glyphOf(font, code);
    const QRectF ink = font.pathForGlyph(glyph).boundingRect();
    return {ink.center().x() / unitsPerEm, (font.ascent() + ink.center().y()) / unitsPerEm,
            ink.width() / 2 / unitsPerEm,
            font.advancesForGlyphIndexes({glyph}).front().x() / unitsPerEm,
            (font.ascent() + font.descent()) / unitsPerEm};
}

LineHeight lineInEms(QFont::Weight weight) {
    QFont wanted(QStringLiteral("Liberation Sans"));
    wanted.setPixelSize(static_cast<int>(unitsPerEm));
    wanted.setWeight(weight);
    wanted.setHintingPreference(QFont::PreferNoHinting);
    const QRawFont font = QRawFont::fromFont(wanted);
    const double reach =
        font.pathForGlyph(font.glyphIndexesForString("g").front()).boundingRect().bottom();
    return {font.ascent() / unitsPerEm, (font.ascent() + font.descent()) / unitsPerEm,
            reach / unitsPerEm};
}

} // namespace

Picture readPacked(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = qUncompress(file.readAll());
    if (bytes.size() < 6) return {};
    Picture picture{word(bytes, 0), word(bytes, 2), {}};
    const int colours = word(bytes, 4);
    const int start = 6 + 3 * colours;
    if (bytes.size() != start + picture.width * picture.height) return {};
    picture.pixels.reserve(static_cast<std::size_t>(picture.width) *
                           static_cast<std::size_t>(picture.height));
    for (int at = start; at < bytes.size(); ++at) {
        const int entry = 6 + 3 * byte(bytes, at);
        if (entry >= start) return {};
        picture.pixels.emplace_back(byte(bytes, entry), byte(bytes, entry + 1),
                                    byte(bytes, entry + 2));
    }
    return picture;
}

Picture readGif(const std::string& path) {
    int error = 0;
    GifFileType* gif = DGifOpenFileName(path.c_str(), &error);
    if (gif == nullptr) return {};
    Picture picture;
    if (DGifSlurp(gif) == GIF_OK && gif->ImageCount == 1) {
        const SavedImage& image = gif->SavedImages[0];
        picture.width = image.ImageDesc.Width;
        picture.height = image.ImageDesc.Height;
        for (int at = 0; at < picture.width * picture.height; ++at) {
            const GifColorType& colour = gif->SColorMap->Colors[image.RasterBits[at]];
            picture.pixels.emplace_back(colour.Red, colour.Green, colour.Blue);
        }
    }
    DGifCloseFile(gif, &error);
    return picture;
}

const Picture& fullPicture() {
    static const Picture picture = readPacked(CARD_OUTPUT "/full.bin");
    return picture;
}

const Picture& halfPicture() {
    static const Picture picture = readPacked(CARD_OUTPUT "/half.bin");
    return picture;
}

Colour printedColour(int number) {
    return number == 2 ? Colour{195, 17, 25} : number == 3 ? Colour{15, 105, 180} : Colour{0, 0, 0};
}

Glyph markGlyph(const Field& mark, int twips) {
    static const Glyph square = glyphInEms(CARD_FONTS "/zevlin-marks-bold.ttf", 110);
    static const Glyph ring = glyphInEms(CARD_FONTS "/zevlin-marks-regular.ttf", 161);
    const Glyph& one = mark.isCheck() ? square : ring;
    const double size = em(markPoints[mark.size - 1], twips);
    return {one.centreX * size, one.centreY * size, one.radius * size, one.advance * size,
            one.height * size};
}

CheckInk checkInk(const Field& mark, int twips) {
    static const QRawFont font = markFont(CARD_FONTS "/zevlin-marks-bold.ttf");
    static const QRectF ink = font.pathForGlyph(glyphOf(font, 252)).boundingRect();
    const double size = em(markPoints[mark.size - 1], twips) / unitsPerEm;
    const double line = font.ascent() * size;
    return {ink.left() * size, line + ink.top() * size, ink.right() * size,
            line + ink.bottom() * size};
}

LineHeight textLine(const Field& text, int twips) {
    static const LineHeight regular = lineInEms(QFont::Normal);
    static const LineHeight bold = lineInEms(QFont::Bold);
    const LineHeight& one = text.size == 3 ? bold : regular;
    const double size = em(textPoints[text.size - 1], twips);
    return {one.ascent * size, one.height * size, one.reach * size};
}

} // namespace card_picture
