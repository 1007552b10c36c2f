// Paints what a card is drawn of. Internal to the toolkit's sources.
#pragma once

#include <span>

#include "toolkit/model/drawing.h"

class QPainter;

namespace toolkit {

/// At the painter's scale, one unit for each unit of the items' lengths.
void paintItems(QPainter& painter, std::span<const DrawnItem> items);

/// At the painter's scale, one unit for each pixel of the drawing. Its paper isn't painted.
void paintDrawing(QPainter& painter, const Drawing& drawing);

/// Likewise, with everything at its exact place, on whatever rows of the device.
void paintRecording(QPainter& painter, const CardRecording& card);

} // namespace toolkit
