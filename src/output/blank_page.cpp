#include "output/blank_page.h"

#include <optional>
#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/twips.h"

namespace zev {
namespace {

constexpr int columnsTested = 200; ///< pixels
constexpr int columnStep = 5;

/// None outside the box. Without a picture the box shows its back colour.
std::optional<toolkit::Color> colorAt(const toolkit::PictureBox& picture, int x, int y) {
    if (picture.Picture) return picture.Picture->pixel(x, y);
    const bool isInside =
        x < toolkit::pixelsFromTwips(picture.Width) && y < toolkit::pixelsFromTwips(picture.Height);
    return isInside ? std::optional(picture.BackColor) : std::nullopt;
}

/// Tests as many rows as the width has pixels: a card is about as wide as high.
std::string_view verdict(const toolkit::PictureBox& picture) {
    const int rows = toolkit::pixelsFromTwips(picture.Width);
    for (int x = 0; x <= columnsTested; x += columnStep) {
        for (int y = 0; y < rows; ++y) {
            const auto color = colorAt(picture, x, y);
            if (!color) return "untestable";
            if (*color != toolkit::white) return "not blank";
        }
    }
    return "blank";
}

} // namespace

void TestBlankPage(Zevlin& form, std::string_view label, const toolkit::PictureBox& picture) {
    if (!form.TraceOn) return;
    Traceit(form, "TestBlankPage");
    Traceit(form, std::string(label) + " TestBlankPage: page is " + std::string(verdict(picture)) +
                      "; MemoryLoad=" + MemoryLoad(form));
}

} // namespace zev
