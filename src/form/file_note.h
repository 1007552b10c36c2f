// The note at the foot of the form that says which files a command has written.
#pragma once

#include <filesystem>

namespace zev {

struct Zevlin;

/// A file that the player has asked for was written: it stands on the next note.
void rememberWrittenFile(Zevlin& form, const std::filesystem::path& file);

/// Shows the note for some seconds if there is any such file, with a link that shows the last of
/// them in its folder.
void showFileNote(Zevlin& form);

/// Takes the note away and forgets its files. Every command begins with this.
void hideFileNote(Zevlin& form);

/// The link was clicked.
void FileNote_Click(Zevlin& form);

} // namespace zev
