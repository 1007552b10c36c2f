// The card's picture at the size of the view.
#pragma once

#include "toolkit/model/control.h"
#include "view/card_picture.h"

namespace zev {

struct Zevlin;

/// Whether to scale the picture even if the scale hasn't changed.
enum class Rescale { IfChanged, Always };

/// Bounds of the scales that can be shown; any other is shown at half size.
constexpr float smallestScale = 0.2F;
constexpr float largestScale = 1.0F;

/// Gives `target` the picture of `source` at the scale, with a white strip below it that takes the
/// time stamp: 15 pixels high at full size.
void SetImageSize(Zevlin& form, toolkit::PictureBox& target, const CardPicture& source, float scale,
                  Rescale rescale);

/// Begins to make the picture that RestoreBackgroundPicture will soon give to the card, if the card
/// needs another one.
void StartPicture(Zevlin& form);

/// Gives the card the size of the present zoom step or fit.
void RestoreBackgroundPicture(Zevlin& form, Rescale rescale);

/// The same for a new card, if the size has changed. Outside a rebuild the picture stays for which
/// the fields were made: a zoom that was refused leaves another step, but no other picture.
void restorePictureOfFields(Zevlin& form);

} // namespace zev
