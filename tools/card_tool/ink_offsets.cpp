#include "card_tool/ink_offsets.h"

#include <array>
#include <cmath>

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "card_tool/mark_cell.h"
#include "card_tool/units.h"
#include "layout/ink.h"

namespace card_tool {
namespace {

toolkit::Bitmap drawn(const Typeface& face, char32_t character, double em) {
    const int width = static_cast<int>(std::ceil(face.advance(character) * em)) + 1;
    const int height = static_cast<int>(std::ceil(face.height() * em)) + 1;
    toolkit::Bitmap picture(width, height);
    QImage canvas(reinterpret_cast<uchar*>(picture.row(0)), width, height, QImage::Format_RGB32);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(face.outline(character, em).translated(0, face.ascent() * em), Qt::black);
    return picture;
}

} // namespace

zev::FileOffsets inkOffsets(const Typefaces& faces, int twipsPerPixel) {
    struct Kind {
        const Typeface& face;
        int character;
        const std::array<float, 3>& points;
    };
    const std::array kinds{
        Kind{faces.marksBold, markSymbol(MarkKind::Check), markPoints},
        Kind{faces.marksRegular, markSymbol(MarkKind::Circle), markPoints},
        Kind{faces.textRegular, '[', textPoints},
    };
    zev::FileOffsets offsets{};
    auto next = offsets.begin();
    for (const auto& [face, character, points] : kinds)
        for (const float size : points) {
            const auto picture =
                drawn(face, static_cast<char32_t>(character), emPixels(size, twipsPerPixel));
            const auto ink = zev::findInk(picture, toolkit::white).value();
            *next++ = static_cast<float>(ink.left);
            *next++ = static_cast<float>(ink.bottom);
        }
    return offsets;
}

} // namespace card_tool
