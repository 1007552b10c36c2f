// Asking for a card's name, on a panel over the form.
#pragma once

#include <string>
#include <vector>

namespace zev {

struct Zevlin;

/// Shows the panel and waits for the player. Returns the name that they chose, trimmed; empty for
/// Cancel or a name that no file can have.
[[nodiscard]] std::string GetFileNames(Zevlin& form);

/// The names of the player's cards in the data folder.
[[nodiscard]] std::vector<std::string> listCards(const Zevlin& form);

/// Lists the cards of the data folder by name, none of them selected.
void PopulateFileList(Zevlin& form);

/// The open chooser after its last card was deleted.
void showEmptyFolder(Zevlin& form);

/// Whether a card can have the name; tells the player if not.
[[nodiscard]] bool checkCardName(const std::string& name);

} // namespace zev
