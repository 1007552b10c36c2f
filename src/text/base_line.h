// Where a field's text stands over the line printed for it.
#pragma once

#include "toolkit/model/label.h"

namespace zev {

/// How many twips of the shown card a pixel of the card's design takes. The two figures differ a
/// little: fields follow the card's width, rounded to whole pixels of the screen, and what is
/// printed on the card follows its exact scale.
struct DesignPixel {
    float ofFields = 0;
    float ofPrint = 0;
};

/// The places allowed for the baseline of a text whose font puts it `base` twips below the top of
/// the card. Layouts put a text less than a design pixel above the rule printed for it, and rules
/// on whole design pixels: the baseline may stand anywhere between the rule and the design pixel
/// above it, as both are shown.
[[nodiscard]] toolkit::Baseline baselineOverRule(float base, const DesignPixel& pixel);

} // namespace zev
