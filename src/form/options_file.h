// The options file: a line of key, value and comment for each setting, and figures for support.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "toolkit/base/system.h"
#include "toolkit/print/printer.h"

namespace zev {

constexpr const char* optionsFileName = "ZEV.Ini";

/// A setting line as the reader takes it.
struct OptionLine {
    std::string key;   ///< lower case, trimmed
    std::string value; ///< trimmed, the comment cut off
    int number = 0;    ///< the number the value begins with, rounded half to even, 0 if none
};
/// None for a line without "=".
[[nodiscard]] std::optional<OptionLine> parseOption(std::string_view line);

/// The printer facts that the program keeps.
struct PrinterFacts {
    std::int32_t hdc = 0;
    int PixPerInchx = 0;
    int PixPerInchY = 0;
    int OffsetX = 0; ///< printer pixels
    int OffsetY = 0;
    float PageWidthInches = 0; ///< the printable part
    float PageHeightInches = 0;
    int BitsPerPixel = 0;
    std::string Devicename;
    int PaperBin = 0;
};

/// All that the options file says.
struct OptionsDocument {
    std::string programVersion;
    std::string name;
    std::string number;
    bool mono = false;
    bool color = false;
    int zoom = 0;
    int fit = 0;
    int fontSize = 0;
    bool bold = false;
    bool printAlternate = false;
    std::string normalFont;
    std::string narrowFont;
    std::string markFont;
    std::string suitFont;
    bool fillIn = false;
    std::int64_t colorScheme = 0;
    bool trace = false;
    toolkit::Printer printer;
    PrinterFacts facts;
    std::string systemVersion;
    float screenWidth = 0;  ///< twips
    float screenHeight = 0; ///< twips
    int twipsPerPixel = 15;
    float actualTwipsX = 15;
    float actualTwipsY = 15;
    std::string applicationPath;
    std::string documentsPath;
    std::string currentPath;
    toolkit::MemoryFacts memory;
    std::string memoryLoad; ///< with its unit
    toolkit::MemoryUsage usage;
};

} // namespace zev
