#include "toolkit/window/qt_form_area.h"

#include <cmath>

#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/text/text_painter.h"
#include "toolkit/window/panel/qt_gradient.h"
#include "toolkit/window/panel/qt_panel_labels.h"

namespace toolkit {
namespace {

constexpr int textMargin = 2;

const FontSpec textFont{.Name = "Arial", .Size = 8, .Bold = true};

const FontSpec hintFont{.Name = "Arial", .Size = 14};
constexpr int hintMargin = 10;
constexpr auto hintGround = rgb(255, 255, 225);

void paintTiles(QPainter& painter, const FormBackground& background, QSize size) {
    if (!background.tile || background.tile->empty()) return;
    const Bitmap& tile = *background.tile;
    const QImage image(reinterpret_cast<const uchar*>(tile.row(0)), tile.width(), tile.height(),
                       tile.width() * 4, QImage::Format_RGB32);
    const auto scale = static_cast<double>(background.tileScale);
    const int top = pixelsFromTwips(background.yOffset);
    QBrush brush(image);
    brush.setTransform(QTransform::fromTranslate(0, top).scale(scale, scale));
    painter.fillRect(QRect(0, top, size.width(), size.height() - top), brush);
}

void paintGradient(QPainter& painter, const FormBackground& background, const QRect& area,
                   QSize size) {
    for (int y = area.top(); y <= area.bottom(); ++y)
        painter.fillRect(area.left(), y, area.width(), 1,
                         gradientColor(background, y, size.height()));
}

void paintText(QPainter& painter, const std::string& text, int height) {
    if (text.empty()) return;
    const int top = height - pixelsFromTwips(textHeight(textFont)) - textMargin;
    const QPointF origin(textMargin, top + pixelsFromTwips(textAscent(textFont)));
    drawRun(painter, origin, textFont, 1.0 / twipsPerPixel(), black, text);
}

/// On a plate of its own, so that it can be read on any background.
void paintHint(QPainter& painter, const std::string& hint, QSize size) {
    if (hint.empty()) return;
    const QSize text(pixelsFromTwips(textWidth(hintFont, hint)),
                     pixelsFromTwips(textHeight(hintFont)));
    QRect plate(QPoint(), text.grownBy({hintMargin, hintMargin, hintMargin, hintMargin}));
    plate.moveCenter(QRect(QPoint(), size).center());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(frameColor(qColor(hintGround)));
    painter.setBrush(qColor(hintGround));
    painter.drawRoundedRect(QRectF(plate).adjusted(0.5, 0.5, -0.5, -0.5), hintMargin, hintMargin);
    painter.restore();
    const QPointF origin(plate.left() + hintMargin,
                         plate.top() + hintMargin + pixelsFromTwips(textAscent(hintFont)));
    drawRun(painter, origin, hintFont, 1.0 / twipsPerPixel(), black, hint);
}

} // namespace

FormArea::FormArea(QWidget& form, const Form& values, Wheel& wheel)
    : QWidget(&form), form_(values), wheel_(wheel) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void FormArea::push() {
    const bool isShown =
        shown_ == form_.Background && shownColor_ == form_.BackColor && shownHint_ == form_.Hint;
    if (isShown) return;
    shown_ = form_.Background;
    shownHint_ = form_.Hint;
    shownColor_ = form_.BackColor;
    update();
}

void FormArea::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.fillRect(event->rect(), qColor(shownColor_));
    if (shown_.backdrop == Backdrop::Tiles) paintTiles(painter, shown_, size());
    if (shown_.backdrop == Backdrop::Gradient)
        paintGradient(painter, shown_, event->rect(), size());
    paintText(painter, shown_.text, height());
    paintHint(painter, shownHint_, size());
}

void FormArea::wheelEvent(QWheelEvent* event) { wheel_.turn(*event); }

} // namespace toolkit
