// One card on the open document.
#pragma once

#include <memory>

#include "toolkit/model/drawing.h"

namespace zev {

struct Zevlin;

/// Printer pixels from the corner of the page's printable part.
struct DevicePlace {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
};

/// Stretches the card into the document; each figure is rounded to whole pixels.
void PrintImage(Zevlin& form, const std::shared_ptr<const toolkit::CardRecording>& card,
                const DevicePlace& place);

} // namespace zev
