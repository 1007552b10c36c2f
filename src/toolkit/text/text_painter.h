// The single place that paints text. Internal: only the toolkit's own sources may include it.
#pragma once

#include <string_view>

#include <QtCore/QPointF>
#include <QtGui/QFont>

#include "toolkit/base/color.h"
#include "toolkit/text/font_spec.h"

class QPainter;

namespace toolkit {

/// Paints a text whose baseline starts at `baselineOrigin`, in the painter's coordinates. A glyph
/// stands exactly where textWidth of the bytes before it says, whatever the scale; across, it is
/// placed by fractions of a pixel, and a caller who wants crisp baselines rounds `y` to a whole
/// device pixel. `pixelsPerTwip` is 1 / twipsPerPixel() for painting at the screen's own scale.
/// Each byte is one character; nothing is an escape, so a caption is passed through paintedText
/// first.
void drawRun(QPainter& painter, QPointF baselineOrigin, const FontSpec& font, double pixelsPerTwip,
             Color color, std::string_view text);

/// The font as Qt's own widgets take it, through the same substitutes: unhinted, unkerned,
/// antialiased in greys. Qt's fonts have whole pixel sizes only; the advances are spaced to those
/// of the exact size, so that a text in a widget is as long as in a label, to a fraction of a
/// pixel.
[[nodiscard]] QFont qtFont(const FontSpec& font);

} // namespace toolkit
