// Message boxes, input boxes and questions for a file: modal, answered by the player or by a test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "toolkit/window/questions.h"

namespace toolkit {

/// Shows the box over the form and waits. Closing it answers Cancel (No or Ok where there is none).
[[nodiscard]] Answer show(const MessageBox& box);
/// For boxes with a single button.
void tell(std::string_view text, Icon icon, std::string_view title = {});

/// The player's answer, control characters dropped; empty on cancel.
[[nodiscard]] std::string ask(const InputBox& box);

/// The file that the player wants written, asked about if it exists; empty on cancel.
[[nodiscard]] std::filesystem::path askForFile(const FileQuestion& question);

} // namespace toolkit
