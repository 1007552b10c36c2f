#include "toolkit/files.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <optional>

#include "toolkit/error.h"
#include "toolkit/file_handle.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t chunkSize = 65536;

// Most file systems write so much as a whole.
constexpr std::size_t blockSize = 4096;

// No text or picture of the program comes near; what is longer would only fill the memory.
constexpr std::size_t largestContent = std::size_t{256} * 1024 * 1024;

void check(const fs::path& path, const std::error_code& error) {
    if (!error) return;
    const auto condition = error.default_error_condition();
    failFile(path, condition.category() == std::generic_category() ? condition.value() : EIO);
}

void requireFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) failFile(path, ENOENT);
    check(path, error);
    if (status.type() == fs::file_type::directory) throw RunTimeError(Failure::PathFileAccess);
}

void writeContent(const fs::path& path, FileMode mode, std::string_view content) {
    FileHandle file(path, mode);
    file.write(content);
    file.close();
}

void copyContent(FileHandle& source, FileHandle& target) {
    std::array<char, chunkSize> buffer{};
    while (true) {
        const std::string_view chunk = source.read(buffer);
        if (chunk.empty()) break;
        target.write(chunk);
    }
    target.close();
}

void copyTime(const fs::path& source, const fs::path& target) {
    std::error_code error;
    const auto time = fs::last_write_time(source, error);
    check(source, error);
    fs::last_write_time(target, time, error);
    check(target, error);
}

void removeHalfWritten(const fs::path& path) {
    std::error_code ignored;
    if (fs::is_regular_file(path, ignored)) fs::remove(path, ignored);
}

/// Where a file can be put in the place of what is there, also behind a link; none for a device.
std::optional<fs::path> replaceablePlace(const fs::path& path) {
    std::error_code ignored;
    const bool isLink = fs::is_symlink(path, ignored);
    const fs::file_type type = fs::status(path, ignored).type();
    if (type == fs::file_type::not_found && !isLink) return path;
    if (type != fs::file_type::regular) return std::nullopt;
    // What can't be written can't be replaced, either.
    FileHandle(path, FileMode::Append).close();
    return isLink ? fs::canonical(path, ignored) : path;
}

/// Makes the file as long as the content, within the blocks that it has already.
bool grow(const fs::path& path, std::uintmax_t length, std::string_view content) {
    if (length >= content.size()) return true;
    try {
        writeContent(path, FileMode::Append, content.substr(static_cast<std::size_t>(length)));
        return true;
    } catch (const RunTimeError&) {
        std::error_code ignored;
        fs::resize_file(path, length, ignored);
        return false;
    }
}

/// Where the file stands: a disk without room still takes what needs no more blocks than it has.
bool overwrite(const fs::path& path, std::string_view content) {
    std::error_code error;
    const std::uintmax_t length = fs::file_size(path, error);
    if (error || !grow(path, length, content)) return false;
    writeContent(path, FileMode::Update, content);
    if (content.size() < length) fs::resize_file(path, content.size(), error);
    return !error;
}

bool isInOneBlock(const fs::path& path, std::string_view content) {
    std::error_code error;
    const std::uintmax_t length = fs::file_size(path, error);
    return !error && length > 0 && length <= blockSize && content.size() <= blockSize;
}

/// None where the folder takes no file beside the one that is replaced.
std::optional<FileHandle> openBeside(const fs::path& path) {
    try {
        return FileHandle(path, FileMode::Replace);
    } catch (const RunTimeError& failure) {
        if (failure.failure() == Failure::DiskFull) throw;
        return std::nullopt;
    }
}

/// The old content stays until the new one is whole. False if that can't be done here.
bool exchangeContent(const fs::path& path, std::string_view content) {
    fs::path part = path.parent_path() / "$$";
    part += path.filename();
    part += ".part";
    auto file = openBeside(part);
    if (!file) return false;
    std::error_code error;
    try {
        file->write(content);
        file->close();
    } catch (...) {
        file.reset();
        removeHalfWritten(part);
        throw;
    }
    const fs::file_status old = fs::status(path, error);
    if (fs::exists(old)) fs::permissions(part, old.permissions(), error);
    fs::rename(part, path, error);
    if (error) removeHalfWritten(part);
    return !error;
}

} // namespace

std::string readFile(const fs::path& path) {
    FileHandle file(path, FileMode::Read);
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

void writeFile(const fs::path& path, std::string_view content) {
    const auto place = replaceablePlace(path);
    try {
        if (place && exchangeContent(*place, content)) return;
    } catch (const RunTimeError& failure) {
        if (failure.failure() == Failure::DiskFull && overwrite(*place, content)) return;
        throw;
    }
    writeContent(path, FileMode::Replace, content);
}

void updateFile(const fs::path& path, std::string_view content) {
    try {
        if (isInOneBlock(path, content) && overwrite(path, content)) return;
    } catch (const RunTimeError&) {
        // The other way may do, or else tells why not.
    }
    writeFile(path, content);
}

void appendFile(const fs::path& path, std::string_view content) {
    writeContent(path, FileMode::Append, content);
}

void copyFile(const fs::path& source, const fs::path& target) {
    requireFile(source);
    std::error_code ignored;
    // Opening a file for writing on top of itself would empty it.
    if (fs::equivalent(source, target, ignored)) throw RunTimeError(Failure::PermissionDenied);
    FileHandle from(source, FileMode::Read);
    std::optional<FileHandle> to(std::in_place, target, FileMode::Replace);
    try {
        copyContent(from, *to);
        copyTime(source, target);
    } catch (...) {
        to.reset();
        removeHalfWritten(target);
        throw;
    }
}

void renameFile(const fs::path& source, const fs::path& target) {
    std::error_code error;
    if (!fs::exists(fs::symlink_status(source, error))) failFile(source, ENOENT);
    if (fs::exists(fs::symlink_status(target, error)))
        throw RunTimeError(Failure::FileAlreadyExists);
    fs::rename(source, target, error);
    check(target, error);
}

void deleteFile(const fs::path& path) {
    std::error_code error;
    // The platform's call would remove an empty folder as well.
    if (fs::is_directory(fs::symlink_status(path, error)))
        throw RunTimeError(Failure::PathFileAccess);
    if (!fs::remove(path, error) && !error) failFile(path, ENOENT);
    check(path, error);
}

std::time_t fileTime(const fs::path& path) {
    std::error_code error;
    const auto time = fs::last_write_time(path, error);
    check(path, error);
    const auto systemTime = std::chrono::file_clock::to_sys(time);
    return std::chrono::floor<std::chrono::seconds>(systemTime).time_since_epoch().count();
}

std::uintmax_t fileLength(const fs::path& path) {
    std::error_code error;
    const std::uintmax_t length = fs::file_size(path, error);
    check(path, error);
    return length;
}

} // namespace toolkit
