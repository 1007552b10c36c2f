// A file shown in the desktop's file manager. Internal to the toolkit's sources.
#pragma once

#include <functional>

#include <QtCore/QUrl>

namespace toolkit {

/// Asks the file manager to show the file's folder with the file selected. Returns at once;
/// `otherwise` runs where no file manager does that, now or from a later event.
void selectInFileManager(const QUrl& file, const std::function<void()>& otherwise);

} // namespace toolkit
