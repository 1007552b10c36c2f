#include "toolkit/base/file_calls.h"

#ifndef _WIN32

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace toolkit::file_calls {
namespace {

constexpr mode_t newFile = 0666; // less what the player's mask takes away

// More programs than this don't write one file at the same moment.
constexpr int mostTries = 10;

template <typename Call>
auto uninterrupted(Call call) {
    while (true) {
        const auto result = call();
        if (result != -1 || errno != EINTR) return result;
    }
}

std::error_code lastError() { return {errno, std::generic_category()}; }

int openWith(const std::filesystem::path& path, int flags) {
    return uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC, newFile); });
}

/// A folder could be opened, and only not be read.
int openToRead(const std::filesystem::path& path) {
    const int file = openWith(path, O_RDONLY);
    struct stat opened {};
    if (file == -1 || ::fstat(file, &opened) != 0 || !S_ISDIR(opened.st_mode)) return file;
    ::close(file);
    errno = EISDIR;
    return -1;
}

bool isStillNamed(int file, const std::filesystem::path& path) {
    struct stat opened {};
    struct stat named {};
    return ::fstat(file, &opened) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// For this program alone; what a dead one left there is used. Another may have put the file in its
/// place between opening and locking: then it isn't to be touched any more.
int openBeside(const std::filesystem::path& path) {
    for (int tries = 0; tries < mostTries; ++tries) {
        const int file = openWith(path, O_WRONLY | O_CREAT | O_NOFOLLOW);
        if (file == -1) return -1;
        // A file system without locks is no reason to write nothing.
        const bool isTaken = ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        if (!isTaken && isStillNamed(file, path) && ::ftruncate(file, 0) == 0) return file;
        ::close(file);
        if (isTaken) break;
    }
    errno = EWOULDBLOCK;
    return -1;
}

} // namespace

int openFile(const std::filesystem::path& path, FileMode mode) {
    switch (mode) {
    case FileMode::Read:
        return openToRead(path);
    case FileMode::Replace:
        return openWith(path, O_WRONLY | O_CREAT | O_TRUNC);
    case FileMode::Append:
        return openWith(path, O_WRONLY | O_CREAT | O_APPEND);
    case FileMode::Update:
        return openWith(path, O_WRONLY);
    case FileMode::New:
        return openWith(path, O_WRONLY | O_CREAT | O_EXCL);
    case FileMode::Beside:
        return openBeside(path);
    }
    errno = EINVAL;
    return -1;
}

int readSome(int file, std::span<char> buffer) {
    return static_cast<int>(
        uninterrupted([&] { return ::read(file, buffer.data(), buffer.size()); }));
}

int writeSome(int file, std::string_view content) {
    return static_cast<int>(
        uninterrupted([&] { return ::write(file, content.data(), content.size()); }));
}

bool syncFile(int file) {
    return uninterrupted([&] { return ::fdatasync(file); }) == 0 || errno == EINVAL;
}

bool closeFile(int file) {
    // Interrupted it is closed, too: a second call could close what another has opened meanwhile.
    return ::close(file) == 0 || errno == EINTR;
}

std::error_code renameOver(const std::filesystem::path& source,
                           const std::filesystem::path& target) {
    return std::rename(source.c_str(), target.c_str()) == 0 ? std::error_code() : lastError();
}

std::error_code renameToNew(const std::filesystem::path& source,
                            const std::filesystem::path& target) {
    if (::renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
        return {};
    if (errno != EINVAL && errno != ENOSYS) return lastError();
    // A file system that doesn't know the flag: a link never replaces, either.
    if (::link(source.c_str(), target.c_str()) != 0) return lastError();
    return ::unlink(source.c_str()) == 0 ? std::error_code() : lastError();
}

// Closed any earlier, another program could take it for a dead one's and empty it.
std::error_code renameOpenFile(int& /*file*/, const std::filesystem::path& source,
                               const std::filesystem::path& target, Existing existing) {
    return existing == Existing::Kept ? renameToNew(source, target) : renameOver(source, target);
}

void removeOpenFile(int file, const std::filesystem::path& path) {
    ::unlink(path.c_str());
    if (file != -1) closeFile(file);
}

std::error_code syncFolder(const std::filesystem::path& folder) {
    const int file = openWith(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
    // A folder may be used by those who may not read it.
    if (file == -1) return errno == EACCES ? std::error_code() : lastError();
    const bool isSynced = uninterrupted([&] { return ::fsync(file); }) == 0 || errno == EINVAL;
    const std::error_code error = isSynced ? std::error_code() : lastError();
    closeFile(file);
    return error;
}

} // namespace toolkit::file_calls

#endif
