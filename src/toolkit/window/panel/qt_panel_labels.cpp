#include "toolkit/window/panel/qt_panel_labels.h"

#include <algorithm>

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

/// As much of the caption as fits, up to a blank; at least one word.
std::size_t lengthOfLine(const Label& label, std::string_view caption) {
    std::size_t fitting = caption.find(' ');
    for (std::size_t end = fitting; end != std::string_view::npos;) {
        end = caption.find(' ', end + 1);
        if (textWidth(label.Font, paintedText(caption.substr(0, end))) > label.Width) break;
        fitting = end;
    }
    return std::min(fitting, caption.size());
}

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
    // Filled, not drawn: a pen lies half beside its line where a pixel is several of the screen's.
    const QRect place = pixelRectangle(label);
    for (const QRect& edge : QRegion(place) - place.adjusted(1, 1, -1, -1))
        painter.fillRect(edge, frameColor(qColor(label.BackColor)));
}

void paintWrappedLabel(QPainter& painter, const Label& label) {
    Label line = label;
    line.Height = textHeight(label.Font);
    std::string_view rest = label.Caption;
    while (!rest.empty() && line.Top + line.Height <= label.Top + label.Height + line.Height / 2) {
        const std::size_t length = lengthOfLine(label, rest);
        line.Caption = rest.substr(0, length);
        paintLabel(painter, line);
        line.Top += line.Height;
        rest.remove_prefix(std::min(rest.size(), length + 1));
    }
}

} // namespace toolkit
