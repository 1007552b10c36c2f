// Texts between two rows of pixels. Internal to the toolkit's sources.
#pragma once

#include <string_view>

#include <QtCore/QPointF>

#include "toolkit/base/color.h"
#include "toolkit/text/font_spec.h"

class QPainter;

namespace toolkit {

/// Like drawRun, at a baseline that is no whole row of the device's pixels: the text's edges are
/// mixed with the paper as far as it lies in their rows.
void drawRunBetweenRows(QPainter& painter, QPointF baselineOrigin, const FontSpec& font,
                        double pixelsPerTwip, Color color, std::string_view text);

} // namespace toolkit
