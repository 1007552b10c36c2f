// Which card files a command line means.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace zev {

/// Finds cards one by one, so that a list may be of any length. What is wrong with a name is told
/// at once, and the rest goes on.
class CardList {
  public:
    struct Settings {
        /// Zevlin's folder, asked for once, when a name is no file; it may be empty or not there.
        std::function<std::filesystem::path()> dataFolder{};
        /// The folder with the sample cards, likewise, when Zevlin's folder has no such card.
        std::function<std::filesystem::path()> installedFolder{};
        bool takesFolders = false;
    };
    using Take = std::function<void(const std::filesystem::path& card)>;
    using Complain = std::function<void(const std::string& message)>;

    CardList(Settings settings, Take take, Complain complain);

    /// A file, a folder, or the name of a card in Zevlin's folder or of a sample card, with or
    /// without its extension. A folder gives its cards and those of the folders below it, each
    /// once, sorted by their bytes; links are followed, unless they lead back to a folder on the
    /// way to them.
    void add(std::string_view utf8);

  private:
    void addFolder(const std::filesystem::path& folder);
    /// The number of cards found in it.
    void walk(const std::filesystem::path& folder);
    void takeCard(const std::filesystem::path& card);
    void complain(const std::filesystem::path& path, std::string_view what);
    [[nodiscard]] std::filesystem::path named(std::string_view utf8);

    Settings settings_;
    Take take_;
    Complain complain_;
    std::optional<std::filesystem::path> dataFolder_;
    std::optional<std::filesystem::path> installedFolder_;
    std::set<std::filesystem::path> way_;    ///< the folders that are being walked
    std::set<std::filesystem::path> walked_; ///< and all that have been
    std::size_t found_ = 0;                  ///< cards, or reasons why there are none
};

} // namespace zev
