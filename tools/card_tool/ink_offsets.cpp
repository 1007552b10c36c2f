#include "card_tool/ink_offsets.h"

#include "card_tool/mark_cell.h"
#include "card_tool/units.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cmath>

namespace card {
namespace {

QImage drawn(const Typeface& face, char32_t character, double em) {
    const QSize size(static_cast<int>(std::ceil(face.advance(character) * em)) + 1,
                     static_cast<int>(std::ceil(face.height() * em)) + 1);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(face.outline(character, em).translated(0, face.ascent() * em), Qt::black);
    return image;
}

InkOffset measure(const QImage& image) {
    InkOffset offset{image.width(), -1};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255)) {
                offset.left = std::min(offset.left, x);
                offset.bottom = std::max(offset.bottom, y);
            }
    return offset;
}

} // namespace

std::array<InkOffset, 9> inkOffsets(const Typefaces& faces, int twipsPerPixel) {
    struct Kind {
        const Typeface& face;
        char32_t character;
        const double (&points)[3];
    };
    const Kind kinds[]{{faces.marksBold, 252, markPoints},
                       {faces.marksRegular, 161, markPoints},
                       {faces.textRegular, U'[', textPoints}};
    std::array<InkOffset, 9> offsets{};
    auto next = offsets.begin();
    for (const Kind& kind : kinds)
        for (const double points : kind.points)
            *next++ = measure(drawn(kind.face, kind.character, emPixels(points, twipsPerPixel)));
    return offsets;
}

} // namespace card
