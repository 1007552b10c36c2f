#include "toolkit/text/draw_text.h"

#include <cmath>

#include <QtGui/QPainter>

#include "toolkit/base/twips.h"
#include "toolkit/picture/qt_picture.h"
#include "toolkit/text/font.h"
#include "toolkit/text/text_painter.h"

namespace toolkit {

void drawText(Bitmap& bitmap, float x, float y, const FontSpec& font, Color color,
              std::string_view text) {
    if (bitmap.empty()) return;
    const double pixelsPerTwip = 1.0 / twipsPerPixel();
    const double baseline = std::round(y + textAscent(font) * pixelsPerTwip);
    QImage image = imageOver(bitmap);
    QPainter painter(&image);
    drawRun(painter, QPointF(x, baseline), font, pixelsPerTwip, color, text);
}

} // namespace toolkit
