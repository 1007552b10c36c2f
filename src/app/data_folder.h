// The folder in which all the player's files live.
#pragma once

#include <filesystem>

namespace zev {

struct Zevlin;

/// Of the data folder in the documents folder.
constexpr const char* dataFolderName = "ZEV";

/// The shell folder with this identifier (5 is Documents), empty on a failure.
[[nodiscard]] std::filesystem::path GetSpecialFolder(Zevlin& form, int identifier);

/// Makes the data folder and moves the installation's files for the player into it: a newer file
/// there is never replaced, a card of other content only after a copy of it, and where the program
/// folder is shared nothing is; a source goes only after its copy was verified.
void mDocsFolder_Click(Zevlin& form);

} // namespace zev
