// Qt keeps pictures of glyphs for whole rows of pixels only; their outlines can stand anywhere, but
// take ten times as long to paint. So a text between two rows is painted by its outlines once, and
// kept as a picture.
#include "toolkit/text/qt_run_picture.h"

#include <array>
#include <cmath>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include <QtCore/QCache>
#include <QtCore/QCoreApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>
#include <QtGui/QTransform>

#include "toolkit/base/ansi.h"
#include "toolkit/base/qt_geometry.h"
#include "toolkit/text/qt_font_face.h"
#include "toolkit/text/text_painter.h"

namespace toolkit {
namespace {

constexpr double outlineSize = 64;
/// A text's place is rounded to these parts of a pixel.
constexpr double places = 64;
/// More texts than a card has areas.
constexpr qsizetype mostPictures = 512;
/// A file may bring a text of any length; one that is wider stands on a row after all.
constexpr int widestPicture = 4096;

/// The fonts' outlines at one size, by the byte of the text.
class Outlines {
  public:
    const QPainterPath& of(const FontSpec& font, const FontFace& face, unsigned char character) {
        if (byFace_.empty()) qAddPostRoutine([] { outlines().byFace_.clear(); });
        Face& outlinesOfFace = byFace_[&face];
        if (!outlinesOfFace.font.isValid()) {
            outlinesOfFace.font = QRawFont::fromFont(styledFont(font));
            outlinesOfFace.font.setPixelSize(outlineSize);
        }
        auto& outline = outlinesOfFace.outlines[character];
        if (!outline) outline = outlinesOfFace.font.pathForGlyph(face.glyphs[character]);
        return *outline;
    }
    static Outlines& outlines() {
        static Outlines kept;
        return kept;
    }

  private:
    struct Face {
        QRawFont font;
        std::array<std::optional<QPainterPath>, 256> outlines;
    };
    std::map<const FontFace*, Face> byFace_;
};

/// A text in pixels of the device, with its origin in parts of a pixel.
struct RunLook {
    const FontFace* face = nullptr;
    double pixelSize = 0;
    Color color = black;
    int across = 0;
    int down = 0;
    std::string text;

    friend bool operator==(const RunLook&, const RunLook&) = default;
    friend std::size_t qHash(const RunLook& look, std::size_t seed) {
        return qHashMulti(seed, look.face, look.pixelSize, look.color, look.across, look.down,
                          QByteArrayView(look.text));
    }
};

/// The text with its origin at (0, 0).
QPainterPath outlineOf(const FontSpec& font, const RunLook& look) {
    const double pixelsPerUnit = look.pixelSize / look.face->measures.unitsPerEm;
    const double outlineScale = look.pixelSize / outlineSize;
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    double units = 0;
    for (const char character : look.text) {
        const bool isBlank = character == ' ' || character == noBreakSpace;
        const QTransform place(outlineScale, 0, 0, outlineScale, units * pixelsPerUnit, 0);
        if (!isBlank)
            outline.addPath(place.map(Outlines::outlines().of(font, *look.face, code(character))));
        units += look.face->measures.advances[code(character)];
    }
    return outline;
}

/// A painted text and where its upper left corner lies from the whole pixel of its origin.
struct RunPicture {
    QPoint corner;
    QImage image;
};

RunPicture paintedRun(const FontSpec& font, const RunLook& look) {
    const QPainterPath outline =
        outlineOf(font, look).translated(look.across / places, look.down / places);
    const QRect area = outline.boundingRect().toAlignedRect();
    if (area.isEmpty() || area.width() > widestPicture) return {};
    RunPicture picture{area.topLeft(), {area.size(), QImage::Format_ARGB32_Premultiplied}};
    picture.image.fill(Qt::transparent);
    QPainter painter(&picture.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    painter.fillPath(outline, qColor(look.color));
    return picture;
}

RunPicture runPicture(const FontSpec& font, const RunLook& look) {
    static QCache<RunLook, RunPicture> pictures(mostPictures);
    if (const RunPicture* known = pictures.object(look)) return *known;
    RunPicture picture = paintedRun(font, look);
    pictures.insert(look, std::make_unique<RunPicture>(picture).release());
    return picture;
}

} // namespace

void drawRunBetweenRows(QPainter& painter, QPointF baselineOrigin, const FontSpec& font,
                        double pixelsPerTwip, Color color, std::string_view text) {
    const QTransform& device = painter.deviceTransform();
    const double ratio = device.m22();
    const double pixelSize = font.Size * twipsPerPoint * pixelsPerTwip * ratio;
    if (!(pixelSize > 0)) return;
    const QPointF origin = device.map(baselineOrigin);
    const QPointF whole(std::floor(origin.x()), std::floor(origin.y()));
    const auto part = [](double from, double to) { return qRound((to - from) * places); };
    const RunPicture picture = runPicture(font, {.face = &fontFace(font),
                                                 .pixelSize = pixelSize,
                                                 .color = color,
                                                 .across = part(whole.x(), origin.x()),
                                                 .down = part(whole.y(), origin.y()),
                                                 .text = std::string(text)});
    if (picture.image.isNull())
        return drawRun(painter, baselineOrigin, font, pixelsPerTwip, color, text);
    const QPointF corner = device.inverted().map(whole + picture.corner);
    const QSizeF size = QSizeF(picture.image.size()) / ratio;
    painter.drawImage(QRectF(corner, size), picture.image);
}

} // namespace toolkit
