// Sample cards: described by the names of fields, installed as card files.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "card_tool/sheet.h"

namespace card_tool {

/// A filled-in card, told by the names of fields.
struct SampleCard {
    std::string name{}; ///< also the file's
    std::string partnerName{};
    std::string partnerNumber{};
    std::set<std::string> marks{};
    std::map<std::string, std::string> texts{};
};

/// Reads a sample card. Throws Failure with file and line when it is malformed.
[[nodiscard]] SampleCard readSampleCard(const std::filesystem::path& path);

/// The text of the card file. Throws Failure if the sample names a field that the sheet lacks.
[[nodiscard]] std::string cardText(const SampleCard& sample, const Sheet& sheet);

} // namespace card_tool
