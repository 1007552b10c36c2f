// Printers and their facts. There is always one: "Print to PDF".
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/base/error.h"

namespace toolkit {

/// A paper that a printer takes. Sizes in inches of the sheet held upright.
struct Paper {
    int code = 0;
    std::string name;    ///< as the player reads it
    std::string keyword; ///< as the system knows it
    float width = 0;
    float height = 0;
    float sideMargin = 0; ///< on each side the printer can't reach
    float endMargin = 0;  ///< likewise above and below
};

/// A tray, a kind of paper or a quality that a printer offers.
struct PrinterOption {
    int code = 0; ///< from 1 on
    std::string name;
    std::string keyword;
};

/// Values of Printer::ColorMode.
constexpr int monochrome = 1;
constexpr int colored = 2;

enum class Orientation : int { Portrait = 1, Landscape = 2 };

/// Facts of a printer as the system reports them. Sizes in twips.
struct Printer {
    std::string DeviceName;
    std::int32_t hdc = 0; ///< a token, not 0 while the printer is there
    int ColorMode = colored;
    bool CanColor = false;     ///< whether colours can be asked for
    bool AsksForColor = false; ///< each job asks for colours, whatever the printer's own setting
    int Copies = 1;
    float Height = 0;
    float Width = 0;
    float ScaleHeight = 0; ///< of the printable part
    float ScaleWidth = 0;
    int Orientation = 1; ///< 1 portrait, 2 landscape
    int PaperBin = 0;    ///< this, PaperType and Quality are 0 where the printer decides
    int PaperSize = 1;
    int PaperType = 0;
    int Quality = 0;
    float TwipsPerPixelX = 0;
    float TwipsPerPixelY = 0;
    int PixelsPerInchX = 0;
    int PixelsPerInchY = 0;
    int PhysicalOffsetX = 0; ///< printer pixels
    int PhysicalOffsetY = 0;
    int PhysicalWidth = 0; ///< printer pixels
    int PhysicalHeight = 0;
    bool CanTurn = true; ///< whether the orientation can be chosen
    std::vector<Paper> Papers;
    std::vector<PrinterOption> Trays;
    std::vector<PrinterOption> PaperTypes;
    std::vector<PrinterOption> Qualities;
    /// What the system's dialog was told, where the system keeps it in a device of its own.
    std::shared_ptr<void> SystemDevice{};
};

/// Computes all that follows from resolution, paper and orientation. A paper that the printer
/// doesn't have leaves the facts as they are.
void layOutPage(Printer& printer, int paperSize, Orientation orientation);

/// Colours, where the printer can be asked for them.
void requestColor(Printer& printer);

constexpr std::string_view printToPdfName = "Print to PDF";

/// 482 with the reason in brackets behind its description; an empty one adds nothing.
[[nodiscard]] RunTimeError printerFailure(std::string_view reason);

} // namespace toolkit
