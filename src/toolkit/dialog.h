// Message boxes, input boxes and pop-up menus: modal, answered by the player or by a test.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "toolkit/control.h"

namespace toolkit {

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel, YesNoSaveAs };
enum class Icon { None, Exclamation, Question, Information };
enum class Answer : int { Ok = 1, Cancel = 2, Yes = 6, No = 7, SaveAs = 8 };

struct MessageBox {
    std::string text{};
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    std::string title{};            ///< empty: the program's own
    std::optional<Answer> preset{}; ///< the default button; none: the first
};

/// Shows the box over the form and waits. Closing it answers Cancel (No or Ok where there is none).
[[nodiscard]] Answer show(const MessageBox& box);
/// For boxes with a single button.
void tell(std::string_view text, Icon icon, std::string_view title = {});

struct InputBox {
    std::string prompt{};
    std::string title{};
    std::string preset{};
};

/// The player's answer, control characters dropped; empty on cancel.
[[nodiscard]] std::string ask(const InputBox& box);

struct FileQuestion {
    std::string title{};
    std::filesystem::path preset{}; ///< folder and name that are offered
    std::string pattern{};          ///< "*.pdf": its extension is added to a name without one
};

/// The file that the player wants written, asked about if it exists; empty on cancel.
[[nodiscard]] std::filesystem::path askForFile(const FileQuestion& question);

/// One row of a pop-up menu; without an item it is a separator.
struct PopupRow {
    MenuItem* item = nullptr;
    std::string shortcut{}; ///< shown beside the caption, for example "Ctrl+B"
    std::function<void()> Click{};
};

/// Opens a pop-up menu at the pointer and waits; the chosen row's Click runs before it returns.
void popupMenu(std::span<const PopupRow> rows);

/// Answers boxes in the player's place. An empty function gives the boxes back to the screen.
struct DialogAnswers {
    std::function<Answer(const MessageBox&)> message{};
    std::function<std::string(const InputBox&)> input{};
    std::function<void(std::span<const PopupRow>)> popup{};
    std::function<std::filesystem::path(const FileQuestion&)> file{};
};
void answerDialogsWith(DialogAnswers answers);

} // namespace toolkit
