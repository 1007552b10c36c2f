// A filled-in card to look at.
#pragma once

#include <QtGui/QImage>

#include "card_tool/sample_card.h"
#include "card_tool/sheet.h"
#include "card_tool/typeface.h"
#include "toolkit/picture/indexed_picture.h"

namespace card_tool {

/// A sample with every mark set and twelve characters in every text.
[[nodiscard]] SampleCard everythingFilled(const Sheet& sheet);

/// The card at half scale or more as a player sees it, filled in: for looking at, and not a promise
/// of each pixel that the program paints. Twips per pixel tells which layout and font sizes to use.
[[nodiscard]] QImage preview(const toolkit::IndexedPicture& picture, const Sheet& sheet,
                             const SampleCard& sample, const Typefaces& faces, double scale,
                             int twipsPerPixel);

} // namespace card_tool
