// The help page: a list of lines that lies over the card until the player closes it.
#pragma once

namespace toolkit {
struct MouseArguments;
}

namespace zev {

struct Zevlin;

/// Fills the list anew. Called at start-up, and again once the data folder has been made.
void HelpCreate(Zevlin& form);

/// Lays the page over the card and gives it the focus.
void MHelp_Click(Zevlin& form);

/// Sizes the page to its text and the form, and puts it into the form's middle.
void layOutHelp(Zevlin& form);

/// Esc and Enter close the page.
void THelp_KeyPress(Zevlin& form, int& KeyAscii);

/// So does the button at its upper right corner.
void BHelp_Click(Zevlin& form);

/// A right click prints the page on the printer as it is set up. A failure is only traced.
void THelp_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse);

/// Whether the line names the web site.
[[nodiscard]] bool isHelpLink(const Zevlin& form, int line);

/// A click on one of the two lines that name the web site opens it.
void THelp_Click(Zevlin& form);

} // namespace zev
