// The help page: a list of lines that lies over the card until the player closes it.
#pragma once

namespace zev {

struct Zevlin;

/// Fills the list anew. Called at start-up, and again once the data folder has been made.
void HelpCreate(Zevlin& form);

/// Sizes the list to its text, lays it over the card and gives it the focus.
void MHelp_Click(Zevlin& form);

/// Esc and Enter close the page.
void THelp_KeyPress(Zevlin& form, int& KeyAscii);

/// The two lines that name the web site open it.
void THelp_Click(Zevlin& form);

} // namespace zev
