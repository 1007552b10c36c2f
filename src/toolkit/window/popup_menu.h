// Pop-up menus: modal, answered by the player or by a test.
#pragma once

#include <span>
#include <string_view>

#include "toolkit/window/questions.h"

namespace toolkit {

/// Opens a pop-up menu at the pointer and waits; the chosen row's Click runs before it returns. The
/// name is for screen readers.
void popupMenu(std::span<const PopupRow> rows, std::string_view name = {});

/// The same below the current row of a list that is shown, for who has asked for it by key.
void popupMenu(std::span<const PopupRow> rows, std::string_view name, const ListBox& list);

} // namespace toolkit
