#include "toolkit/window/shell_folders.h"

#include <filesystem>
#include <string>
#include <system_error>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

#include "toolkit/base/program_overrides.h"
#include "toolkit/window/program.h"
#include "toolkit/window/qt_file_manager.h"

namespace toolkit {
namespace {

constexpr int documentsIdentifier = 5;

std::filesystem::path nativePath(const QString& path) {
    std::filesystem::path native(path.toStdU16String(), std::filesystem::path::generic_format);
    return native.make_preferred();
}

QString qPath(const std::filesystem::path& path) {
    return QString::fromStdU16String(path.generic_u16string());
}

void open(const QUrl& address) {
    if (programOverrides().launch)
        return programOverrides().launch(address.toString().toStdString());
    QDesktopServices::openUrl(address);
}

/// The library tells it to an application; a command without windows is one while it asks.
QString folderOfThisProgram() {
    if (QCoreApplication::instance() != nullptr) return QCoreApplication::applicationDirPath();
    int count = 1;
    std::string name = "zevlin";
    char* arguments[] = {name.data(), nullptr};
    const QCoreApplication asking(count, arguments);
    return QCoreApplication::applicationDirPath();
}

} // namespace

std::filesystem::path programFolder() {
    if (!programOverrides().programFolder.empty()) return programOverrides().programFolder;
    const std::filesystem::path program = nativePath(folderOfThisProgram());
    std::filesystem::path beside = program / "zevlin-files";
    std::error_code failure;
    if (std::filesystem::is_directory(beside, failure)) return beside;
    return program.parent_path() / "share" / "zevlin";
}

std::filesystem::path documentsFolder() {
    const ProgramOverrides& overrides = programOverrides();
    if (overrides.noDocuments) return {};
    if (!overrides.documentsFolder.empty()) return overrides.documentsFolder;
    return nativePath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

std::filesystem::path specialFolder(int identifier) {
    if (identifier != documentsIdentifier) return {};
    std::filesystem::path folder = documentsFolder();
    std::error_code failure;
    if (!folder.empty()) std::filesystem::create_directories(folder, failure);
    if (!std::filesystem::is_directory(folder, failure)) return {};
    return folder;
}

std::filesystem::path stateFolder() {
    if (!programOverrides().stateFolder.empty()) return programOverrides().stateFolder;
#ifdef _WIN32
    return nativePath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) /
           "Zevlin";
#else
    const std::filesystem::path folder = qEnvironmentVariable("XDG_STATE_HOME").toStdU16String();
    // By the standard a relative one doesn't count.
    if (folder.is_absolute()) return folder / "zevlin";
    return nativePath(QDir::homePath()) / ".local" / "state" / "zevlin";
#endif
}

void showInFileManager(const std::filesystem::path& file) {
    const QUrl folder = QUrl::fromLocalFile(qPath(file.parent_path()));
    std::error_code failure;
    if (!std::filesystem::exists(file, failure)) return open(folder);
    const QUrl selected = QUrl::fromLocalFile(qPath(file));
    if (programOverrides().launch) return open(selected);
    selectInFileManager(selected, [folder] { open(folder); });
}

void openWebPage(const char* address) { open(QUrl(QString::fromUtf8(address))); }

} // namespace toolkit
