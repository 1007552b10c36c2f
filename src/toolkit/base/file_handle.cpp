#include "toolkit/base/file_handle.h"

#include <cerrno>
#include <utility>

#include "toolkit/base/error.h"
#include "toolkit/base/file_calls.h"
#include "toolkit/base/file_names.h"

namespace toolkit {
void failFile(const std::filesystem::path& path, int errorCode) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) throw RunTimeError(Failure::PathFileAccess);
    const std::filesystem::path folder = path.parent_path();
    const bool isMissing = errorCode == ENOENT;
    if (isMissing && path.filename().native().size() > longestFileName)
        throw RunTimeError(Failure::BadFileName);
    if (isMissing && !folder.empty() && !std::filesystem::is_directory(folder, ignored))
        throw RunTimeError(Failure::PathNotFound);
    throw fileFailure(errorCode);
}

void checkFile(const std::filesystem::path& path, const std::error_code& error) {
    if (!error) return;
    const auto condition = error.default_error_condition();
    failFile(path, condition.category() == std::generic_category() ? condition.value() : EIO);
}

FileHandle::FileHandle(std::filesystem::path path, FileMode mode)
    : path_(std::move(path)), file_(file_calls::openFile(path_, mode)) {
    if (file_ != -1) return;
    const int error = errno;
    if (mode == FileMode::Beside && error == EWOULDBLOCK)
        throw RunTimeError(Failure::FileAlreadyOpen);
    failFile(path_, error);
}

FileHandle::~FileHandle() {
    if (file_ != -1) file_calls::closeFile(file_);
}

FileHandle::FileHandle(FileHandle&& other) noexcept
    : path_(std::move(other.path_)), file_(std::exchange(other.file_, -1)) {}

std::string_view FileHandle::read(std::span<char> buffer) {
    const int length = file_calls::readSome(file_, buffer);
    if (length < 0) failFile(path_, errno);
    return {buffer.data(), static_cast<std::size_t>(length)};
}

void FileHandle::write(std::string_view content) {
    while (!content.empty()) {
        const int length = file_calls::writeSome(file_, content);
        // A device that takes nothing and doesn't say why would be asked for ever.
        if (length <= 0) failFile(path_, length < 0 ? errno : EIO);
        content.remove_prefix(static_cast<std::size_t>(length));
    }
}

void FileHandle::sync() {
    if (!file_calls::syncFile(file_)) failFile(path_, errno);
}

void FileHandle::close() {
    if (!file_calls::closeFile(std::exchange(file_, -1))) failFile(path_, errno);
}

std::error_code FileHandle::renameOver(const std::filesystem::path& target) {
    return file_calls::renameOpenFile(file_, path_, target, file_calls::Existing::Replaced);
}

std::error_code FileHandle::renameToNew(const std::filesystem::path& target) {
    return file_calls::renameOpenFile(file_, path_, target, file_calls::Existing::Kept);
}

void FileHandle::discard() { file_calls::removeOpenFile(std::exchange(file_, -1), path_); }

} // namespace toolkit
