#pragma once

#include "card_tool/sheet.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace card {

/// A filled-in card, told by the names of fields.
struct SampleCard {
    /// The card's name, which is also its file's.
    std::string name{};
    std::string partnerName{};
    std::string partnerNumber{};
    std::set<std::string> marks{};
    std::map<std::string, std::string> texts{};
};

/// Reads a sample card. Throws Failure with file and line when it is malformed.
[[nodiscard]] SampleCard readSampleCard(const std::filesystem::path& path);

/// The text of a card file. Throws Failure if the sample names a field that the sheet lacks.
[[nodiscard]] std::string cardText(const SampleCard& sample, const Sheet& sheet);

} // namespace card
