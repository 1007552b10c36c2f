// Where a field's text stands over the line printed for it.
#pragma once

#include "toolkit/model/label.h"

namespace zev {

/// A pixel of the design in twips on the shown card. The two differ by a trifle: fields go by the
/// card's width in whole pixels of the screen, print by the scale itself.
struct DesignPixel {
    float ofFields = 0;
    float ofPrint = 0;
};

/// For a text whose font puts its base line `base` twips below the card's top. Layouts put texts
/// less than a design pixel above the rule printed for them, and rules on whole design pixels: the
/// base line may stand anywhere in between, as they are shown.
[[nodiscard]] toolkit::BaseLine baseLineOverRule(float base, const DesignPixel& pixel);

} // namespace zev
