// The Explorer, which selects a file that its command line names.
#include "toolkit/window/qt_file_manager.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>

namespace toolkit {

void selectInFileManager(const QUrl& file, const std::function<void()>& otherwise) {
    QProcess explorer;
    explorer.setProgram(QStringLiteral("explorer.exe"));
    // It wants the quotes around the path alone, not around the whole argument.
    explorer.setNativeArguments(QStringLiteral("/select,\"") +
                                QDir::toNativeSeparators(file.toLocalFile()) +
                                QStringLiteral("\""));
    if (!explorer.startDetached()) otherwise();
}

} // namespace toolkit
