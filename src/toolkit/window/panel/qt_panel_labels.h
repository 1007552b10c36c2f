// Paints the labels of a panel. Internal to the toolkit's sources.
#pragma once

#include "toolkit/model/label.h"

class QPainter;
class QColor;

namespace toolkit {

/// The colour of a fine frame round something of this colour.
[[nodiscard]] QColor frameColor(const QColor& ground);

/// An opaque label: its text in the middle of its height, a frame round it.
void paintFramedLabel(QPainter& painter, const Label& label);

/// Leaves out the middle of a caption that is too wide.
void paintShortenedLabel(QPainter& painter, const Label& label);

/// Goes on in the next line, at a blank, where the caption is too wide.
void paintWrappedLabel(QPainter& painter, const Label& label);

} // namespace toolkit
