// Paints labels. Internal to the toolkit's sources.
#pragma once

#include <QtCore/QRect>

#include "toolkit/model/label.h"

class QPainter;

namespace toolkit {

/// Every pixel that painting the label may touch.
[[nodiscard]] QRect paintedRectangle(const Label& label);

/// Paints the label in the container's logical pixels. Leaves the painter's clip set.
void paintLabel(QPainter& painter, const Label& label);

/// For a device with far finer pixels: all at its exact place. Leaves the painter's clip as it was.
void paintLabelExactly(QPainter& painter, const Label& label);

} // namespace toolkit
