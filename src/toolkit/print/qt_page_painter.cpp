#include "toolkit/print/qt_page_painter.h"

#include <QtGui/QPainter>

#include "toolkit/window/card/qt_drawing_painter.h"

namespace toolkit {

void paintPage(QPainter& painter, const Page& page, double dotsPerInch) {
    constexpr double pointsPerInch = 72;
    const double scale = dotsPerInch / pointsPerInch;
    for (const PlacedCard& placed : page.cards) {
        if (placed.card->width <= 0 || placed.card->height <= 0) continue;
        painter.save();
        painter.scale(scale, scale);
        painter.translate(placed.left, placed.top);
        painter.scale(placed.width / placed.card->width, placed.height / placed.card->height);
        paintRecording(painter, *placed.card);
        painter.restore();
    }
    if (page.items.empty()) return;
    painter.save();
    painter.scale(scale, scale);
    paintItems(painter, page.items);
    painter.restore();
}

} // namespace toolkit
