// The card's file as this program saw it last, to notice what another program has done to it.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace zev {

struct Zevlin;

/// The file of the card with this name, in any case, if there is one.
[[nodiscard]] std::optional<std::filesystem::path> findCard(const Zevlin& form,
                                                            std::string_view name);
/// The same, or the path at which the file would be made.
[[nodiscard]] std::filesystem::path cardPath(const Zevlin& form, std::string_view name);
/// The path of the present card.
[[nodiscard]] std::filesystem::path cardPath(const Zevlin& form);

/// Notes that the file of the present card, as opened or saved now, has this content.
void rememberFile(Zevlin& form, const std::filesystem::path& file, std::string_view content);

/// Notes that the present card has no file.
void rememberNoFile(Zevlin& form);

/// Whether another program has changed, made or removed the file since then. Never for a card that
/// has just got its name.
[[nodiscard]] bool isChangedByAnother(const Zevlin& form, const std::filesystem::path& file);

} // namespace zev
