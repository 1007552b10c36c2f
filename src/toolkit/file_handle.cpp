#include "toolkit/file_handle.h"

#include <cerrno>
#include <utility>

#include "toolkit/error.h"

namespace toolkit {
namespace {

/// Of a file, on all platforms; some just say that a longer one isn't there.
constexpr std::size_t longestName = 255;

std::FILE* openFile(const std::filesystem::path& path, FileMode mode) {
#ifdef _WIN32
    constexpr const wchar_t* modes[] = {L"rb", L"wb", L"ab", L"r+b"};
    return _wfopen(path.c_str(), modes[static_cast<int>(mode)]);
#else
    constexpr const char* modes[] = {"rb", "wb", "ab", "r+b"};
    return std::fopen(path.c_str(), modes[static_cast<int>(mode)]);
#endif
}

} // namespace

void failFile(const std::filesystem::path& path, int errorCode) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) throw RunTimeError(Failure::PathFileAccess);
    const std::filesystem::path folder = path.parent_path();
    const bool isMissing = errorCode == ENOENT;
    if (isMissing && path.filename().native().size() > longestName)
        throw RunTimeError(Failure::BadFileName);
    if (isMissing && !folder.empty() && !std::filesystem::is_directory(folder, ignored))
        throw RunTimeError(Failure::PathNotFound);
    throw fileFailure(errorCode);
}

FileHandle::FileHandle(std::filesystem::path path, FileMode mode)
    : path_(std::move(path)), file_(openFile(path_, mode)) {
    if (file_ == nullptr) failFile(path_, errno);
}

std::string_view FileHandle::read(std::span<char> buffer) {
    const std::size_t length = std::fread(buffer.data(), 1, buffer.size(), file_.get());
    if (std::ferror(file_.get()) != 0) failFile(path_, errno);
    return {buffer.data(), length};
}

void FileHandle::write(std::string_view content) {
    if (std::fwrite(content.data(), 1, content.size(), file_.get()) != content.size())
        failFile(path_, errno);
}

void FileHandle::close() {
    if (std::fflush(file_.get()) != 0) failFile(path_, errno);
    if (std::fclose(file_.release()) != 0) failFile(path_, errno);
}

} // namespace toolkit
