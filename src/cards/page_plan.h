// Which files a run makes of which cards.
#pragma once

#include <compare>
#include <cstddef>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "cards/command_options.h"

namespace zev {

/// The name of the file that is made of a card: that of the card with another ending.
[[nodiscard]] std::filesystem::path outputName(const CommandOptions& options,
                                               const std::filesystem::path& card);

/// Cards in their order. It takes some hundred bytes for each of them.
class PagePlan {
  public:
    /// The options stay where they are.
    explicit PagePlan(const CommandOptions& options) : options_(options) {}

    void add(const std::filesystem::path& card);

    /// A message for each card whose file another card has, or would be made of; or that would be
    /// written over a card. Nothing may be made then.
    [[nodiscard]] std::vector<std::string> clashes() const;

    /// Takes away the cards whose files are newer than the card and the layout asked for. Where all
    /// pages go into one file, it is all of them or none.
    void dropUpToDate();

    [[nodiscard]] std::size_t size() const { return cards_.size(); }
    [[nodiscard]] std::filesystem::path card(std::size_t index) const { return cards_[index]; }
    /// The file that is made of the card, in the folder that was asked for.
    [[nodiscard]] std::filesystem::path output(std::size_t index) const;

  private:
    /// A file that is to be made, by its name, and the card that it is made of.
    struct NamedFile {
        std::size_t hash = 0;
        std::size_t index = 0;
        friend auto operator<=>(const NamedFile&, const NamedFile&) = default;
    };

    [[nodiscard]] std::vector<NamedFile> sortedFiles() const;
    [[nodiscard]] std::vector<std::pair<std::size_t, std::size_t>>
    pairsOf(const std::vector<NamedFile>& files) const;
    [[nodiscard]] bool isUpToDate(std::size_t index) const;

    const CommandOptions& options_;
    /// No paths, which keep each of their parts by itself.
    std::vector<std::filesystem::path::string_type> cards_;
};

} // namespace zev
