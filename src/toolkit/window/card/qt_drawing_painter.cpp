#include "toolkit/window/card/qt_drawing_painter.h"

#include <algorithm>

#include <QtGui/QPainter>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/picture/qt_picture.h"
#include "toolkit/text/text_painter.h"
#include "toolkit/window/card/qt_label_painter.h"

namespace toolkit {
namespace {

void paintItem(QPainter& painter, const FilledRectangle& box) {
    painter.fillRect(QRectF(box.left, box.top, box.width, box.height), qColor(box.color));
}

void paintItem(QPainter& painter, const Words& words) {
    const FontSpec font{.Name = words.fontName,
                        .Size = static_cast<float>(words.em / twipsPerPoint),
                        .Bold = words.bold,
                        .Italic = false};
    drawRun(painter, QPointF(words.left, words.baseline), font, 1, words.color, words.text);
}

void paintArtwork(QPainter& painter, const CardRecording& card) {
    const double scale = static_cast<double>(card.picture->width()) / card.artwork->width;
    painter.save();
    painter.scale(scale, scale);
    paintDrawing(painter, *card.artwork);
    painter.restore();
}

/// A picture that is all there is of a card keeps its colours to the last shade.
void paintPicture(QPainter& painter, const Bitmap& picture) {
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    painter.drawImage(0, 0, imageOver(picture));
}

/// What isn't paper of its own shows through around the picture.
void paintGround(QPainter& painter, const CardRecording& card) {
    if (card.paper != white)
        painter.fillRect(QRectF(0, 0, card.width, card.height), qColor(card.paper));
    if (!card.picture) return;
    if (!card.artwork) return paintPicture(painter, *card.picture);
    if (card.paper != white)
        painter.fillRect(QRectF(0, 0, card.picture->width(), card.picture->height()), Qt::white);
    paintArtwork(painter, card);
}

} // namespace

void paintDrawing(QPainter& painter, const Drawing& drawing) {
    for (const DrawnItem& item : drawing.items)
        std::visit([&painter](const auto& drawn) { paintItem(painter, drawn); }, item);
}

void paintRecording(QPainter& painter, const CardRecording& card) {
    paintGround(painter, card);
    for (const Label& label : card.labels) paintLabelExactly(painter, label);
}

} // namespace toolkit
