#include "toolkit/window/panel/qt_panel_labels.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <QtGui/QPainter>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/window/card/qt_label_painter.h"

namespace toolkit {
namespace {

/// Percents of Qt's own scale.
constexpr int frameDarkness = 140;
/// A dark ground has a lighter frame instead.
constexpr int darkestGround = 60;
constexpr int frameLightness = 250;

} // namespace

QColor frameColor(const QColor& ground) {
    if (ground.value() >= darkestGround) return ground.darker(frameDarkness);
    return ground.value() == 0 ? QColor(Qt::darkGray) : ground.lighter(frameLightness);
}

void paintFramedLabel(QPainter& painter, const Label& label) {
    Label ground = label;
    ground.Caption.clear();
    paintLabel(painter, ground);
    Label text = label;
    text.BackStyle = BackStyle::Transparent;
    text.Height = textHeight(label.Font);
    text.Top += (label.Height - text.Height) / 2;
    paintLabel(painter, text);
    painter.setClipping(false);
    // Filled, not drawn: on high-DPI screens a pen lies half beside its line.
    const QRect place = pixelRectangle(label);
    for (const QRect& edge : QRegion(place) - place.adjusted(1, 1, -1, -1))
        painter.fillRect(edge, frameColor(qColor(label.BackColor)));
}

void paintShortenedLabel(QPainter& painter, const Label& label) {
    Label shown = label;
    shown.Caption =
        captionFor(shortened(label.Font, paintedText(label.Caption), label.Width, Cut::Middle));
    paintLabel(painter, shown);
}

void paintWrappedLabel(QPainter& painter, const Label& label) {
    Label line = label;
    line.Height = textHeight(label.Font);
    const std::string text = paintedText(label.Caption);
    for (const std::string_view words : wrappedLines(label.Font, text, label.Width)) {
        if (line.Top + line.Height > label.Top + label.Height + line.Height / 2) return;
        line.Caption = captionFor(words);
        paintLabel(painter, line);
        line.Top += line.Height;
    }
}

} // namespace toolkit
