// The program under test finds these functions before those of the C library, which they call.
#include "faults/watched_calls.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <map>
#include <mutex>
#include <optional>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace test_faults {

struct OpenFile {
    std::string path;
    bool isFolder = false;
};

struct WatchState {
    std::string folder;
    Gate gate;
    std::vector<Operation> done;
    std::map<int, OpenFile> files;
};

namespace {

std::mutex mutex;
std::atomic<WatchState*> watchState = nullptr; // null: nothing is watched
thread_local bool isInside = false;

/// Calls made while it lives aren't watched.
class Inside {
  public:
    Inside() { isInside = true; }
    ~Inside() { isInside = false; }
    Inside(const Inside&) = delete;
    Inside& operator=(const Inside&) = delete;
};

bool isWatching() { return watchState != nullptr && !isInside; }

/// The path as the system takes it, if it is watched.
std::optional<std::string> watched(int folder, const char* path) {
    const WatchState* state = watchState;
    if (state == nullptr || path == nullptr) return std::nullopt;
    std::string whole = path;
    if (whole.empty() || whole.front() != '/') {
        const auto at = state->files.find(folder);
        if (at == state->files.end()) return std::nullopt;
        whole = at->second.path + "/" + whole;
    }
    const std::string& root = state->folder;
    const bool isBelow =
        whole.starts_with(root) && (whole.size() == root.size() || whole[root.size()] == '/');
    return isBelow ? std::optional(whole) : std::nullopt;
}

std::optional<OpenFile> watchedFile(int file) {
    const WatchState* state = watchState;
    if (state == nullptr) return std::nullopt;
    const auto at = state->files.find(file);
    return at == state->files.end() ? std::nullopt : std::optional(at->second);
}

bool isRefused(Call call, const std::string& path) {
    const Inside inside;
    const WatchState* state = watchState;
    const int error = state->gate ? state->gate(call, path) : 0;
    if (error != 0) errno = error;
    return error != 0;
}

void note(Operation operation) {
    const Inside inside;
    const int kept = errno;
    watchState.load()->done.push_back(std::move(operation));
    errno = kept;
}

template <typename Function>
Function* next(Function* /*type*/, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// A call on a path that may be watched: fails with -1 where the gate says so.
template <typename Real>
int onPath(Call call, int folder, const char* path, Real real) {
    if (!isWatching()) return real();
    const std::lock_guard lock(mutex);
    const auto name = watched(folder, path);
    if (!name) return real();
    if (isRefused(call, *name)) return -1;
    const int result = real();
    if (result == 0) note({.call = call, .path = *name});
    return result;
}

template <typename Real>
auto onFile(Call call, int file, Real real) -> decltype(real()) {
    if (!isWatching()) return real();
    const std::lock_guard lock(mutex);
    const auto opened = watchedFile(file);
    if (opened && isRefused(call, opened->path)) return -1;
    return real();
}

template <typename Real>
int openWatched(int folder, const char* path, int flags, Real real) {
    if (!isWatching()) return real();
    const std::lock_guard lock(mutex);
    const auto name = watched(folder, path);
    if (!name) return real();
    const bool writes = (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0;
    const Call call = writes ? Call::OpenToWrite : Call::Open;
    if (isRefused(call, *name)) return -1;
    const int file = real();
    if (file == -1) return file;
    const Inside inside;
    struct stat facts {};
    const bool isFolder = ::fstat(file, &facts) == 0 && S_ISDIR(facts.st_mode);
    watchState.load()->files[file] = {*name, isFolder};
    note({.call = call, .path = *name, .truncates = (flags & O_TRUNC) != 0});
    return file;
}

template <typename Real>
FILE* openStream(const char* path, const char* mode, Real real) {
    if (!isWatching()) return real();
    const std::lock_guard lock(mutex);
    const auto name = watched(AT_FDCWD, path);
    if (!name) return real();
    const bool writes = std::string(mode).find_first_of("wa+") != std::string::npos;
    if (isRefused(writes ? Call::OpenToWrite : Call::Open, *name)) return nullptr;
    return real();
}

template <typename Real>
ssize_t writeWatched(int file, const void* content, std::optional<off_t> place, Real real) {
    if (!isWatching()) return real();
    const std::lock_guard lock(mutex);
    const auto opened = watchedFile(file);
    if (!opened) return real();
    if (isRefused(Call::Write, opened->path)) return -1;
    const ssize_t length = real();
    if (length <= 0) return length;
    const off_t at = place ? *place : ::lseek(file, 0, SEEK_CUR) - length;
    note({.call = Call::Write,
          .path = opened->path,
          .content = {static_cast<const char*>(content), static_cast<std::size_t>(length)},
          .at = static_cast<std::size_t>(at)});
    return length;
}

template <typename Find, typename Real>
int truncateWatched(Find find, off_t length, Real real) {
    if (!isWatching()) return real();
    const std::lock_guard lock(mutex);
    const std::optional<std::string> path = find();
    if (!path) return real();
    if (isRefused(Call::Truncate, *path)) return -1;
    const int result = real();
    if (result == 0)
        note({.call = Call::Truncate, .path = *path, .at = static_cast<std::size_t>(length)});
    return result;
}

std::optional<std::string> pathOf(int file) {
    const auto opened = watchedFile(file);
    return opened ? std::optional(opened->path) : std::nullopt;
}

template <typename Real>
int syncWatched(int file, Real real) {
    if (!isWatching()) return real();
    const std::lock_guard lock(mutex);
    const auto opened = watchedFile(file);
    if (!opened) return real();
    const Call call = opened->isFolder ? Call::SyncFolder : Call::Sync;
    if (isRefused(call, opened->path)) return -1;
    const int result = real();
    if (result == 0) note({.call = call, .path = opened->path});
    return result;
}

template <typename Real>
int renameWatched(int fromFolder, const char* from, int toFolder, const char* to, Real real) {
    if (!isWatching()) return real();
    const std::lock_guard lock(mutex);
    const auto source = watched(fromFolder, from);
    const auto target = watched(toFolder, to);
    if (!source && !target) return real();
    if (isRefused(Call::Rename, source ? *source : *target)) return -1;
    const int result = real();
    if (result != 0 || !source || !target) return result;
    for (auto& [file, opened] : watchState.load()->files)
        if (opened.path == *source) opened.path = *target;
    note({.call = Call::Rename, .path = *source, .target = *target});
    return result;
}

/// As with the system, the file is closed even if the call fails.
template <typename Real>
int closeWatched(int file, Real real) {
    if (!isWatching()) return real();
    const std::lock_guard lock(mutex);
    const auto opened = watchedFile(file);
    const int result = real();
    if (!opened) return result;
    watchState.load()->files.erase(file);
    return isRefused(Call::Close, opened->path) ? -1 : result;
}

mode_t modeOf(int flags, va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

Watch::Watch(const std::filesystem::path& folder, Gate gate)
    : state_(std::make_unique<WatchState>(WatchState{
          .folder = folder.string(), .gate = std::move(gate), .done = {}, .files = {}})) {
    watchState = state_.get();
}

Watch::~Watch() {
    const std::lock_guard lock(mutex);
    watchState = nullptr;
}

const std::vector<Operation>& Watch::done() const { return state_->done; }

} // namespace test_faults

using namespace test_faults; // NOLINT(google-global-names-in-headers): this is no header

// NOLINTBEGIN(readability-identifier-naming): the C library's names.
#define NEXT(name) (next(static_cast<decltype(::name)*>(nullptr), #name))

extern "C" {

// The library's own name for an argument would be a keyword here.
int watchedRename(const char* from, const char* to) asm("rename");
int watchedRenameat(int fromFolder, const char* from, int toFolder, const char* to) asm("renameat");
int watchedRenameat2(int fromFolder, const char* from, int toFolder, const char* to,
                     unsigned int flags) asm("renameat2");

int open(const char* file, int oflag, ...) {
    va_list arguments;
    va_start(arguments, oflag);
    const mode_t mode = modeOf(oflag, arguments);
    va_end(arguments);
    return openWatched(AT_FDCWD, file, oflag, [&] { return NEXT(open)(file, oflag, mode); });
}
int open64(const char* file, int oflag, ...) {
    va_list arguments;
    va_start(arguments, oflag);
    const mode_t mode = modeOf(oflag, arguments);
    va_end(arguments);
    return openWatched(AT_FDCWD, file, oflag, [&] { return NEXT(open64)(file, oflag, mode); });
}
int openat(int fd, const char* file, int oflag, ...) {
    va_list arguments;
    va_start(arguments, oflag);
    const mode_t mode = modeOf(oflag, arguments);
    va_end(arguments);
    return openWatched(fd, file, oflag, [&] { return NEXT(openat)(fd, file, oflag, mode); });
}
int openat64(int fd, const char* file, int oflag, ...) {
    va_list arguments;
    va_start(arguments, oflag);
    const mode_t mode = modeOf(oflag, arguments);
    va_end(arguments);
    return openWatched(fd, file, oflag, [&] { return NEXT(openat64)(fd, file, oflag, mode); });
}
FILE* fopen(const char* filename, const char* modes) {
    return openStream(filename, modes, [&] { return NEXT(fopen)(filename, modes); });
}
FILE* fopen64(const char* filename, const char* modes) {
    return openStream(filename, modes, [&] { return NEXT(fopen64)(filename, modes); });
}
DIR* opendir(const char* name) {
    if (!isWatching()) return NEXT(opendir)(name);
    const std::lock_guard lock(mutex);
    const auto found = watched(AT_FDCWD, name);
    return found && isRefused(Call::Open, *found) ? nullptr : NEXT(opendir)(name);
}

ssize_t read(int fd, void* buf, size_t nbytes) {
    return onFile(Call::Read, fd, [&] { return NEXT(read)(fd, buf, nbytes); });
}
ssize_t write(int fd, const void* buf, size_t n) {
    return writeWatched(fd, buf, std::nullopt, [&] { return NEXT(write)(fd, buf, n); });
}
ssize_t pwrite(int fd, const void* buf, size_t n, off_t offset) {
    return writeWatched(fd, buf, offset, [&] { return NEXT(pwrite)(fd, buf, n, offset); });
}
ssize_t pwrite64(int fd, const void* buf, size_t n, off64_t offset) {
    return writeWatched(fd, buf, offset, [&] { return NEXT(pwrite64)(fd, buf, n, offset); });
}
int fsync(int fd) {
    return syncWatched(fd, [&] { return NEXT(fsync)(fd); });
}
int fdatasync(int fildes) {
    return syncWatched(fildes, [&] { return NEXT(fdatasync)(fildes); });
}
int close(int fd) {
    return closeWatched(fd, [&] { return NEXT(close)(fd); });
}

int ftruncate(int fd, off_t length) noexcept {
    return truncateWatched([&] { return pathOf(fd); }, length,
                           [&] { return NEXT(ftruncate)(fd, length); });
}
int ftruncate64(int fd, off64_t length) noexcept {
    return truncateWatched([&] { return pathOf(fd); }, length,
                           [&] { return NEXT(ftruncate64)(fd, length); });
}
int truncate(const char* file, off_t length) noexcept {
    return truncateWatched([&] { return watched(AT_FDCWD, file); }, length,
                           [&] { return NEXT(truncate)(file, length); });
}
int truncate64(const char* file, off64_t length) noexcept {
    return truncateWatched([&] { return watched(AT_FDCWD, file); }, length,
                           [&] { return NEXT(truncate64)(file, length); });
}

int watchedRename(const char* from, const char* to) {
    return renameWatched(AT_FDCWD, from, AT_FDCWD, to, [&] { return NEXT(rename)(from, to); });
}
int watchedRenameat(int fromFolder, const char* from, int toFolder, const char* to) {
    return renameWatched(fromFolder, from, toFolder, to,
                         [&] { return NEXT(renameat)(fromFolder, from, toFolder, to); });
}
int watchedRenameat2(int fromFolder, const char* from, int toFolder, const char* to,
                     unsigned int flags) {
    return renameWatched(fromFolder, from, toFolder, to,
                         [&] { return NEXT(renameat2)(fromFolder, from, toFolder, to, flags); });
}
int unlink(const char* name) noexcept {
    return onPath(Call::Remove, AT_FDCWD, name, [&] { return NEXT(unlink)(name); });
}
int unlinkat(int fd, const char* name, int flag) noexcept {
    return onPath(Call::Remove, fd, name, [&] { return NEXT(unlinkat)(fd, name, flag); });
}
int remove(const char* filename) noexcept {
    return onPath(Call::Remove, AT_FDCWD, filename, [&] { return NEXT(remove)(filename); });
}
int mkdir(const char* path, mode_t mode) noexcept {
    return onPath(Call::MakeFolder, AT_FDCWD, path, [&] { return NEXT(mkdir)(path, mode); });
}

int stat(const char* file, struct stat* buf) noexcept {
    return onPath(Call::Look, AT_FDCWD, file, [&] { return NEXT(stat)(file, buf); });
}
int stat64(const char* file, struct stat64* buf) noexcept {
    return onPath(Call::Look, AT_FDCWD, file, [&] { return NEXT(stat64)(file, buf); });
}
int lstat(const char* file, struct stat* buf) noexcept {
    return onPath(Call::Look, AT_FDCWD, file, [&] { return NEXT(lstat)(file, buf); });
}
int lstat64(const char* file, struct stat64* buf) noexcept {
    return onPath(Call::Look, AT_FDCWD, file, [&] { return NEXT(lstat64)(file, buf); });
}
int statx(int dirfd, const char* path, int flags, unsigned int mask, struct statx* buf) noexcept {
    return onPath(Call::Look, dirfd, path,
                  [&] { return NEXT(statx)(dirfd, path, flags, mask, buf); });
}
int access(const char* name, int type) noexcept {
    return onPath(Call::Look, AT_FDCWD, name, [&] { return NEXT(access)(name, type); });
}
int fchmodat(int fd, const char* file, mode_t mode, int flag) noexcept {
    return onPath(Call::Change, fd, file, [&] { return NEXT(fchmodat)(fd, file, mode, flag); });
}
int utimensat(int fd, const char* path, const timespec* times, int flags) noexcept {
    return onPath(Call::Change, fd, path, [&] { return NEXT(utimensat)(fd, path, times, flags); });
}

} // extern "C"
// NOLINTEND(readability-identifier-naming)
