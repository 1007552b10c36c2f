// Files that are dragged over the window and dropped there. Internal to the toolkit.
#pragma once

#include <filesystem>
#include <optional>

class QDropEvent;
class QMimeData;

namespace toolkit {

/// The first of the files that are dragged; none where no file of this machine is among what is
/// dragged. Folders and devices are no files.
[[nodiscard]] std::optional<std::filesystem::path> draggedFile(const QMimeData& dragged);

/// Takes the drag, or refuses it, as the pointer then shows. What is dragged is copied and never
/// moved: its owner would delete it.
void answerDrag(QDropEvent& drag, bool takes);

} // namespace toolkit
