#include "toolkit/qt_label_painter.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include <QtGui/QPainter>

#include "toolkit/qt_geometry.h"
#include "toolkit/text_painter.h"

namespace toolkit {
namespace {

/// Slanted glyphs lean out of their advances by less than this share of the line's height.
constexpr float leaningShare = 0.4F;

/// Distance in twips from the label's left edge to its text's; negative where the text is wider.
float textOffset(const Label& label, float width) {
    switch (label.Alignment) {
    case Alignment::Left:
        return 0;
    case Alignment::Right:
        return label.Width - width;
    case Alignment::Center:
        return (label.Width - width) / 2;
    }
    return 0;
}

/// Length of the words at the beginning that fit into the label; the first word always counts.
std::size_t firstLine(const Label& label, std::string_view text) {
    std::size_t length = std::min(text.find(' '), text.size());
    float width = textWidth(label.Font, text.substr(0, length));
    while (length < text.size()) {
        const std::size_t end = std::min(text.find(' ', length + 1), text.size());
        width += textWidth(label.Font, text.substr(length, end - length));
        if (width > label.Width) break;
        length = end;
    }
    return length;
}

} // namespace

QRect paintedRectangle(const Label& label) {
    const QRect place = pixelRectangle(label);
    if (label.Clips || label.Caption.empty()) return place;
    const auto scale = static_cast<float>(twipsPerPixel());
    const float width = textWidth(label.Font, paintedText(label.Caption)) / scale;
    const float left = textOffset(label, width * scale) / scale;
    const float height = textHeight(label.Font) / scale;
    const float leaning = height * leaningShare;
    const QRectF text(left - leaning, -1, width + 2 * leaning, height + 2);
    return place.united(text.toAlignedRect().translated(place.topLeft()));
}

void paintLabel(QPainter& painter, const Label& label) {
    const QRect place = pixelRectangle(label);
    painter.setClipRect(paintedRectangle(label));
    if (label.BackStyle == BackStyle::Opaque) painter.fillRect(place, qColor(label.BackColor));
    std::string text = paintedText(label.Caption);
    if (label.Wraps) text.resize(firstLine(label, text));
    if (text.empty()) return;
    const auto scale = static_cast<double>(twipsPerPixel());
    const float offset = textOffset(label, textWidth(label.Font, text));
    // Rounded once, from the exact place: the base line of a text keeps to its printed rule, and a
    // mark to its box, as well as whole pixels allow.
    const QPointF origin(static_cast<double>(label.Left + offset) / scale,
                         pixelsFromTwips(label.Top + textAscent(label.Font)));
    drawRun(painter, origin, label.Font, 1 / scale, label.ForeColor, text);
}

} // namespace toolkit
