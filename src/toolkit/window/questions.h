// What boxes and pop-up menus ask.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "toolkit/model/control.h"

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

struct InputBox {
    std::string prompt{};
    std::string title{};
    std::string preset{};
};

struct FileQuestion {
    std::string title{};
    std::filesystem::path preset{}; ///< folder and name that are offered
    std::string pattern{};          ///< "*.pdf": its extension is added to a name without one
};

/// One row of a pop-up menu; without an item it is a separator.
struct PopupRow {
    MenuItem* item = nullptr;
    std::string shortcut{}; ///< shown beside the caption, for example "Ctrl+B"
    std::function<void()> Click{};
};

} // namespace toolkit
