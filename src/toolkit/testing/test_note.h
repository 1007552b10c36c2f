// The note at the foot of the window, for tests.
#pragma once

#include <string>
#include <vector>

namespace toolkit::test {

struct ShownNote {
    std::string text; ///< as it is painted; empty where no note is shown
    std::string link;
    std::string toolTip;
    bool isWithinWindow = false;
    bool isCut = false; ///< the text lacks its middle
    bool isLinkBelow = false;
    bool takesFocus = false;
};
[[nodiscard]] ShownNote shownNote();
void clickNoteLink();
/// Presses the mouse on the text of the note.
void clickNote();

/// The note as a screen reader knows it.
struct ReadNote {
    bool isNotification = false;
    std::string name;
    std::string link; ///< name of the button in it
    std::vector<std::string> actions{};
};
[[nodiscard]] ReadNote readNote();

} // namespace toolkit::test
