// Twips of the values as whole logical pixels of the widgets. Internal to the toolkit's sources.
#pragma once

#include <cmath>

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtGui/QColor>

#include "toolkit/base/color.h"
#include "toolkit/base/twips.h"

namespace toolkit {

/// Rounds each edge by itself, so that neighbours meet wherever they lie.
template <typename Placed>
[[nodiscard]] QRect pixelRectangle(const Placed& placed) {
    const int left = pixelsFromTwips(placed.Left);
    const int top = pixelsFromTwips(placed.Top);
    const int right = pixelsFromTwips(placed.Left + placed.Width);
    const int bottom = pixelsFromTwips(placed.Top + placed.Height);
    return {left, top, right - left, bottom - top};
}

[[nodiscard]] inline float twipsFromPixels(int pixels) {
    return static_cast<float>(pixels * twipsPerPixel());
}

/// The whole pixel that a place lies in; a cast would take -0.5 for pixel 0.
[[nodiscard]] inline QPoint pixelAt(QPointF place) {
    return {static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))};
}

[[nodiscard]] inline QColor qColor(Color color) {
    return {redOf(color), greenOf(color), blueOf(color)};
}

} // namespace toolkit
