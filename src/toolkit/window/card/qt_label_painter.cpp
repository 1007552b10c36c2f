#include "toolkit/window/card/qt_label_painter.h"

#include <algorithm>
#include <cmath>
#include <string>

#include <QtGui/QPainter>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/text/qt_suit_reach.h"
#include "toolkit/text/text_painter.h"

namespace toolkit {
namespace {

/// Slanted glyphs lean out of their advances by less than this share of the line's height.
constexpr float leaningShare = 0.4F;

std::string textOf(const Label& label) {
    std::string text = paintedText(label.Caption);
    if (label.FirstLineOnly) text.resize(lengthOfLine(label.Font, text, label.Width));
    return text;
}

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

/// Twips from the card's top.
double baselineOf(const Label& label) {
    return static_cast<double>(label.Top + textAscent(label.Font) + label.Lowered);
}

/// The baseline on the nearest row of the device's pixels, in the painter's own coordinates.
double paintedLineOf(const Label& label, const QTransform& device) {
    const double row = std::nearbyint(baselineOf(label) * device.m22() / twipsPerPixel());
    // The picture below begins on a whole row of the device, whatever lies above the card.
    return (row + std::round(device.dy()) - device.dy()) / device.m22();
}

/// Whether ink of the text may lie outside the label.
bool mayLeave(const Label& label, float width) {
    const float leaning = label.Font.Italic ? textHeight(label.Font) * leaningShare : 0;
    return width + 2 * leaning > label.Width || label.Lowered < 0 ||
           textHeight(label.Font) + label.Lowered > label.Height;
}

/// A line that the label's height holds isn't cut where its baseline is painted on the row below
/// the exact place.
QRect holdingItsLine(const Label& label, QRect place) {
    const float height = textHeight(label.Font);
    if (height > label.Height) return place;
    const auto scale = static_cast<double>(twipsPerPixel());
    const double below = static_cast<double>(height - textAscent(label.Font)) / scale;
    const double foot = std::nearbyint(baselineOf(label) / scale) + below;
    place.setBottom(std::max(place.bottom(), static_cast<int>(std::ceil(foot)) - 1));
    return place;
}

} // namespace

QRect paintedRectangle(const Label& label) {
    const QRect place = pixelRectangle(label);
    if (label.Caption.empty()) return place;
    if (label.Clips) return holdingItsLine(label, place);
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
    const std::string text = textOf(label);
    if (text.empty()) return;
    const auto scale = static_cast<double>(twipsPerPixel());
    const float offset = textOffset(label, textWidth(label.Font, text));
    const QPointF origin(static_cast<double>(label.Left + offset) / scale,
                         paintedLineOf(label, painter.deviceTransform()));
    drawRun(painter, origin, label.Font, 1 / scale, label.ForeColor, text);
}

void paintLabelExactly(QPainter& painter, const Label& label) {
    const double scale = 1.0 / twipsPerPixel();
    const QRectF place(label.Left * scale, label.Top * scale, label.Width * scale,
                       label.Height * scale);
    if (label.BackStyle == BackStyle::Opaque) painter.fillRect(place, qColor(label.BackColor));
    const std::string text = textOf(label);
    if (text.empty()) return;
    const float width = textWidth(label.Font, text);
    // A page where nothing needs cutting is smaller.
    const bool isCut = label.Clips && mayLeave(label, width);
    if (isCut) {
        painter.save();
        painter.setClipRect(place);
    }
    drawRun(painter,
            QPointF((label.Left + textOffset(label, width)) * scale, baselineOf(label) * scale),
            label.Reach > 0 ? suitsReaching(label.Font, label.Reach) : label.Font, scale,
            label.ForeColor, text);
    if (isCut) painter.restore();
}

} // namespace toolkit
