#pragma once

#include "card/card_file.h"
#include "card/picture.h"
#include "card/sheet.h"
#include "card/typeface.h"

#include <QtGui/QImage>

namespace card {

/// A sample with every mark set and twelve characters in every text.
[[nodiscard]] SampleCard everythingFilled(const Sheet& sheet);

/// The card at half scale or more as a player sees it, filled in: for looking at, and not a promise
/// of each pixel that the program paints. Twips per pixel tells which layout and font sizes to use.
[[nodiscard]] QImage preview(const IndexedPicture& picture, const Sheet& sheet,
                             const SampleCard& sample, const Typefaces& faces, double scale,
                             int twipsPerPixel);

} // namespace card
