// The program's own dialogs: small forms with lists, numbers, options and buttons that wait for the
// player.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/model/command_button.h"
#include "toolkit/model/control.h"

namespace toolkit {

/// A list that shows its chosen row.
struct ComboBox {
    std::string Label; ///< beside it
    std::vector<std::string> List{};
    int ListIndex = -1;
    bool Enabled = true;
    std::function<void()> Click{}; ///< the player has chosen another row
    /// A handler sets the key to 0 to swallow it. TAB, Enter and Esc are the form's, not the box's.
    std::function<void(KeyArguments&)> KeyDown{};
    std::function<void(int& KeyAscii)> KeyPress{};
};

/// A whole number, typed or stepped.
struct NumberBox {
    std::string Label; ///< beside it
    int Min = 0;
    int Max = 99;
    int Value = 0;
    bool Enabled = true;
};

struct OptionButton {
    std::string Caption;
    bool Value = false;
    bool Enabled = true;
};

/// From top to bottom: lists, numbers, options side by side, buttons. "&" in labels and captions
/// marks the access key.
struct ModalForm {
    std::string Caption;
    std::vector<ComboBox*> combos{};
    std::vector<NumberBox*> numbers{};
    std::vector<OptionButton*> options{};
    std::vector<CommandButton*> buttons{};
    bool Unloaded = false; ///< a handler sets it to close the form
};

/// Shows the form over the main one and waits until it is unloaded. Closing its window presses the
/// Cancel button.
void showModal(ModalForm& form);

} // namespace toolkit
