#include "toolkit/base/files.h"

#include <array>
#include <cerrno>
#include <chrono>

#include "toolkit/base/error.h"
#include "toolkit/base/file_calls.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t chunkSize = 65536;

// No text or picture of the program comes near; what is longer would only fill the memory.
constexpr std::size_t largestContent = std::size_t{256} * 1024 * 1024;

} // namespace

std::string readFile(const fs::path& path) { return readFile(FileHandle(path, FileMode::Read)); }

std::string readFile(FileHandle file) {
    std::array<char, chunkSize> buffer{};
    std::string content;
    while (true) {
        const std::string_view chunk = file.read(buffer);
        if (chunk.empty()) return content;
        if (content.size() + chunk.size() > largestContent)
            throw RunTimeError(Failure::OutOfMemory);
        content += chunk;
    }
}

bool isThere(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

void requireFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) failFile(path, ENOENT);
    checkFile(path, error);
    if (status.type() == fs::file_type::directory) throw RunTimeError(Failure::PathFileAccess);
}

void renameFile(const fs::path& source, const fs::path& target) {
    std::error_code error;
    if (!fs::exists(fs::symlink_status(source, error))) failFile(source, ENOENT);
    if (fs::exists(fs::symlink_status(target, error)))
        throw RunTimeError(Failure::FileAlreadyExists);
    fs::rename(source, target, error);
    checkFile(target, error);
}

void replaceByRename(const fs::path& source, const fs::path& target) {
    requireFile(source);
    checkFile(target, file_calls::renameOver(source, target));
    checkFile(target, file_calls::syncFolder(target.parent_path()));
    if (source.parent_path() != target.parent_path())
        checkFile(source, file_calls::syncFolder(source.parent_path()));
}

void deleteFile(const fs::path& path) {
    std::error_code error;
    // The platform's call would remove an empty folder as well.
    if (fs::is_directory(fs::symlink_status(path, error)))
        throw RunTimeError(Failure::PathFileAccess);
    if (!fs::remove(path, error) && !error) failFile(path, ENOENT);
    checkFile(path, error);
}

std::time_t fileTime(const fs::path& path) {
    std::error_code error;
    const auto time = fs::last_write_time(path, error);
    checkFile(path, error);
    const auto systemTime = std::chrono::file_clock::to_sys(time);
    return std::chrono::floor<std::chrono::seconds>(systemTime).time_since_epoch().count();
}

std::uintmax_t fileLength(const fs::path& path) {
    std::error_code error;
    const std::uintmax_t length = fs::file_size(path, error);
    checkFile(path, error);
    return length;
}

} // namespace toolkit
