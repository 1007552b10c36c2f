// Cards that come from elsewhere: files that are dropped on the window or named at the start.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace zev {

struct Zevlin;

/// The name of the player's card that the file is, by whatever links the path leads there; none for
/// any other file.
[[nodiscard]] std::optional<std::string> ownCardOf(const Zevlin& form,
                                                   const std::filesystem::path& file);

/// Asks whether the file is to be copied into the player's cards, then about unsaved changes, and
/// copies it. The copy's name; none if the player refuses, or if the file is no card or can't be
/// copied, which is told.
[[nodiscard]] std::optional<std::string> takeCopy(Zevlin& form, const std::filesystem::path& file);

/// Whether a card can be opened by dropping its file: where Open could be chosen, and while the
/// chooser asks which card to open.
[[nodiscard]] bool takesDroppedCard(const Zevlin& form);

/// Opens the card, a copy of it if it isn't one of the player's own. In the chooser it is the
/// choice.
void openDroppedCard(Zevlin& form, const std::filesystem::path& file);

} // namespace zev
