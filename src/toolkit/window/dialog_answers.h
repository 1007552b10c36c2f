// Answers in the player's place.
#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string>

#include "toolkit/window/questions.h"

namespace toolkit {

/// Answers boxes in the player's place. An empty function gives the boxes back to the screen.
struct DialogAnswers {
    std::function<Answer(const MessageBox&)> message{};
    std::function<std::string(const InputBox&)> input{};
    std::function<void(std::span<const PopupRow>)> popup{};
    std::function<std::filesystem::path(const FileQuestion&)> file{};
};
void answerDialogsWith(DialogAnswers answers);

/// Those in force.
[[nodiscard]] const DialogAnswers& dialogAnswers();

} // namespace toolkit
