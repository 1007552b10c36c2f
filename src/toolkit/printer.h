// Printers and their facts. There is always one: "Print to PDF".
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace toolkit {

/// Facts of a printer as the system reports them. Sizes in twips.
struct Printer {
    std::string DeviceName;
    std::int32_t hdc = 0; ///< a token, not 0 while the printer is there
    int ColorMode = 2;    ///< 1 monochrome, 2 colour
    int Copies = 1;
    float Height = 0;
    float Width = 0;
    float ScaleHeight = 0;
    float ScaleWidth = 0;
    int Orientation = 1; ///< 1 portrait, 2 landscape
    int PaperBin = 0;
    int PaperSize = 1;
    float TwipsPerPixelX = 0;
    int PixelsPerInchX = 0;
    int PixelsPerInchY = 0;
    int PhysicalOffsetX = 0; ///< printer pixels
    int PhysicalOffsetY = 0;
    int PhysicalWidth = 0; ///< printer pixels
    int PhysicalHeight = 0;
    int BitsPerPixel = 24;
};

/// The installed printers, never empty.
[[nodiscard]] std::vector<Printer> installedPrinters();

/// The system's default printer, or "Print to PDF".
[[nodiscard]] Printer defaultPrinter();

/// For tests: the printers that the system has; an empty list gives back the real ones.
void overridePrinters(std::vector<Printer> printers);
/// For tests: a machine where even the default printer has no device context.
void overrideNoPrinter(bool none);

} // namespace toolkit
