// One card on the open document.
#pragma once

#include <memory>

#include "toolkit/model/drawing.h"
#include "toolkit/print/print_job.h"

namespace zev {

struct Zevlin;

/// Printer pixels from the corner of the page's printable part.
struct DevicePlace {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
};

/// Each figure rounded to whole pixels.
[[nodiscard]] toolkit::PrintJob::Place wholePixels(const DevicePlace& place);

/// Stretches the card into the document, at whole pixels.
void PrintImage(Zevlin& form, const std::shared_ptr<const toolkit::CardRecording>& card,
                const DevicePlace& place);

} // namespace zev
