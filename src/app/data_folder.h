// The folder in which all the player's files live.
#pragma once

#include <filesystem>

namespace zev {

struct Zevlin;

/// The data folder among the documents, there or not. Its name, too, may be written in another
/// case.
[[nodiscard]] std::filesystem::path dataFolderIn(const std::filesystem::path& documents);

/// The shell folder with this identifier (5 is Documents), empty on a failure.
[[nodiscard]] std::filesystem::path GetSpecialFolder(Zevlin& form, int identifier);

/// Makes the data folder and moves the installed files that are the player's into it. A newer file
/// there is never replaced, and a card of other content only after a copy of it was kept; where the
/// program folder is shared, nothing is replaced. A source is deleted only after its copy was
/// verified.
void mDocsFolder_Click(Zevlin& form);

} // namespace zev
