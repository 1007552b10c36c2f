#include "toolkit/print/printer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "toolkit/base/error.h"
#include "toolkit/base/twips.h"

namespace toolkit {
namespace {

int pixels(float inches, int perInch) {
    return static_cast<int>(std::lround(inches * static_cast<float>(perInch)));
}

float twips(int pixels, int perInch) {
    return static_cast<float>(pixels) * twipsPerInch / static_cast<float>(perInch);
}

} // namespace

void layOutPage(Printer& printer, int paperSize, Orientation orientation) {
    const auto found = std::ranges::find(printer.Papers, paperSize, &Paper::code);
    if (found == printer.Papers.end()) return;
    printer.PaperSize = paperSize;
    printer.Orientation = static_cast<int>(orientation);
    const int x = printer.PixelsPerInchX;
    const int y = printer.PixelsPerInchY;
    std::array size{found->width, found->height};
    std::array margin{found->sideMargin, found->endMargin};
    if (orientation == Orientation::Landscape) {
        std::swap(size[0], size[1]);
        std::swap(margin[0], margin[1]);
    }
    printer.PhysicalWidth = pixels(size[0], x);
    printer.PhysicalHeight = pixels(size[1], y);
    printer.PhysicalOffsetX = pixels(margin[0], x);
    printer.PhysicalOffsetY = pixels(margin[1], y);
    printer.Width = twips(printer.PhysicalWidth, x);
    printer.Height = twips(printer.PhysicalHeight, y);
    printer.ScaleWidth = twips(printer.PhysicalWidth - 2 * printer.PhysicalOffsetX, x);
    printer.ScaleHeight = twips(printer.PhysicalHeight - 2 * printer.PhysicalOffsetY, y);
    printer.TwipsPerPixelX = twips(1, x);
    printer.TwipsPerPixelY = twips(1, y);
}

void requestColor(Printer& printer) {
    if (!printer.CanColor) return;
    printer.ColorMode = colored;
    printer.AsksForColor = true;
}

RunTimeError printerFailure(std::string_view reason) {
    std::string text(describe(Failure::PrinterError));
    if (!reason.empty()) text.append(" (").append(reason).append(")");
    return {Failure::PrinterError, std::move(text)};
}

} // namespace toolkit
