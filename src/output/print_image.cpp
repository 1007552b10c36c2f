#include "output/print_image.h"

#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

std::string figuresOf(const DevicePlace& place) {
    std::string text = toolkit::numberText(place.x);
    for (const float figure : {place.y, place.width, place.height})
        text += ", " + toolkit::numberText(figure);
    return text;
}

std::string_view resultText(bool success) { return success ? "1" : "0"; }

} // namespace

toolkit::PrintJob::Place wholePixels(const DevicePlace& place) {
    return {.left = toolkit::toInteger32(place.x),
            .top = toolkit::toInteger32(place.y),
            .width = toolkit::toInteger32(place.width),
            .height = toolkit::toInteger32(place.height)};
}

void PrintImage(Zevlin& form, const std::shared_ptr<const toolkit::CardRecording>& card,
                const DevicePlace& place) {
    const std::string figures = figuresOf(place);
    Traceit(form, figures + " PrintImage ");
    trapped(form, "Error in PrintImage: " + figures + " -- ", [&] {
        const bool isDrawn = form.PrinterDC.draw(card, wholePixels(place));
        Traceit(form, "  PrintImage results: Set=1, Stretch=" + std::string(resultText(isDrawn)) +
                          ", SelObj=1");
    });
}

} // namespace zev
