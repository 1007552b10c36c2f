#include "toolkit/window/card/qt_drawing_painter.h"

#include <cmath>
#include <variant>

#include <QtCore/QList>
#include <QtGui/QPainter>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/picture/qt_picture.h"
#include "toolkit/text/font.h"
#include "toolkit/text/text_painter.h"
#include "toolkit/window/card/qt_label_painter.h"

namespace toolkit {
namespace {

/// As long as a pixel of the drawing is taken for a twip. A machine without the font has its wider
/// kin, which comes closer than what the font system would choose.
FontSpec fontOf(const Words& words) {
    const bool isThere = fontNameGiven(words.fontName) == words.fontName;
    return {.Name = isThere ? words.fontName : "Arial",
            .Size = static_cast<float>(words.em / twipsPerPoint),
            .Bold = words.bold,
            .Italic = false};
}

void paintWords(QPainter& painter, const Words& words) {
    constexpr double finest = 0.002;
    const FontSpec font = fontOf(words);
    const QPointF start(words.left, words.baseline);
    const auto width = static_cast<double>(textWidth(font, words.text));
    const double fit = words.width > 0 && width > 0 ? words.width / width : 1;
    if (std::abs(fit - 1) < finest)
        return drawRun(painter, start, font, 1, words.color, words.text);
    painter.save();
    painter.translate(start);
    painter.scale(fit, 1);
    drawRun(painter, {}, font, 1, words.color, words.text);
    painter.restore();
}

/// The boxes of one colour that the items begin with, as one path, which keeps a page small. Comes
/// back with the other items.
std::span<const DrawnItem> paintBoxes(QPainter& painter, std::span<const DrawnItem> items) {
    const Color color = std::get<FilledRectangle>(items.front()).color;
    QList<QRectF> boxes;
    while (!items.empty()) {
        const auto* box = std::get_if<FilledRectangle>(&items.front());
        if (box == nullptr || box->color != color) break;
        boxes.emplaceBack(box->left, box->top, box->width, box->height);
        items = items.subspan(1);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(qColor(color));
    painter.drawRects(boxes);
    return items;
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

void paintItems(QPainter& painter, std::span<const DrawnItem> items) {
    while (!items.empty()) {
        if (const auto* words = std::get_if<Words>(&items.front())) {
            paintWords(painter, *words);
            items = items.subspan(1);
        } else {
            items = paintBoxes(painter, items);
        }
    }
}

void paintDrawing(QPainter& painter, const Drawing& drawing) { paintItems(painter, drawing.items); }

void paintRecording(QPainter& painter, const CardRecording& card) {
    paintGround(painter, card);
    for (const Label& label : card.labels) paintLabelExactly(painter, label);
}

} // namespace toolkit
