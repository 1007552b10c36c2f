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

/// What is called meanwhile isn't watched.
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

/// What is closed is closed even where the call fails, as the system has it.
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

using namespace test_faults;

// NOLINTBEGIN(readability-identifier-naming): the C library's names.
#define NEXT(name) (next(static_cast<decltype(::name)*>(nullptr), #name))

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openWatched(AT_FDCWD, path, flags, [&] { return NEXT(open)(path, flags, mode); });
}
int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openWatched(AT_FDCWD, path, flags, [&] { return NEXT(open64)(path, flags, mode); });
}
int openat(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openWatched(folder, path, flags,
                       [&] { return NEXT(openat)(folder, path, flags, mode); });
}
int openat64(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openWatched(folder, path, flags,
                       [&] { return NEXT(openat64)(folder, path, flags, mode); });
}
FILE* fopen(const char* path, const char* mode) {
    return openStream(path, mode, [&] { return NEXT(fopen)(path, mode); });
}
FILE* fopen64(const char* path, const char* mode) {
    return openStream(path, mode, [&] { return NEXT(fopen64)(path, mode); });
}
DIR* opendir(const char* path) {
    if (!isWatching()) return NEXT(opendir)(path);
    const std::lock_guard lock(mutex);
    const auto name = watched(AT_FDCWD, path);
    return name && isRefused(Call::Open, *name) ? nullptr : NEXT(opendir)(path);
}

ssize_t read(int file, void* buffer, size_t length) {
    return onFile(Call::Read, file, [&] { return NEXT(read)(file, buffer, length); });
}
ssize_t write(int file, const void* content, size_t length) {
    return writeWatched(file, content, std::nullopt,
                        [&] { return NEXT(write)(file, content, length); });
}
ssize_t pwrite(int file, const void* content, size_t length, off_t at) {
    return writeWatched(file, content, at, [&] { return NEXT(pwrite)(file, content, length, at); });
}
ssize_t pwrite64(int file, const void* content, size_t length, off64_t at) {
    return writeWatched(file, content, at,
                        [&] { return NEXT(pwrite64)(file, content, length, at); });
}
int fsync(int file) {
    return syncWatched(file, [&] { return NEXT(fsync)(file); });
}
int fdatasync(int file) {
    return syncWatched(file, [&] { return NEXT(fdatasync)(file); });
}
int close(int file) {
    return closeWatched(file, [&] { return NEXT(close)(file); });
}

int ftruncate(int file, off_t length) noexcept {
    return truncateWatched([&] { return pathOf(file); }, length,
                           [&] { return NEXT(ftruncate)(file, length); });
}
int ftruncate64(int file, off64_t length) noexcept {
    return truncateWatched([&] { return pathOf(file); }, length,
                           [&] { return NEXT(ftruncate64)(file, length); });
}
int truncate(const char* path, off_t length) noexcept {
    return truncateWatched([&] { return watched(AT_FDCWD, path); }, length,
                           [&] { return NEXT(truncate)(path, length); });
}
int truncate64(const char* path, off64_t length) noexcept {
    return truncateWatched([&] { return watched(AT_FDCWD, path); }, length,
                           [&] { return NEXT(truncate64)(path, length); });
}

int rename(const char* from, const char* to) noexcept {
    return renameWatched(AT_FDCWD, from, AT_FDCWD, to, [&] { return NEXT(rename)(from, to); });
}
int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    return renameWatched(fromFolder, from, toFolder, to,
                         [&] { return NEXT(renameat)(fromFolder, from, toFolder, to); });
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned int flags) noexcept {
    return renameWatched(fromFolder, from, toFolder, to,
                         [&] { return NEXT(renameat2)(fromFolder, from, toFolder, to, flags); });
}
int unlink(const char* path) noexcept {
    return onPath(Call::Remove, AT_FDCWD, path, [&] { return NEXT(unlink)(path); });
}
int unlinkat(int folder, const char* path, int flags) noexcept {
    return onPath(Call::Remove, folder, path, [&] { return NEXT(unlinkat)(folder, path, flags); });
}
int remove(const char* path) noexcept {
    return onPath(Call::Remove, AT_FDCWD, path, [&] { return NEXT(remove)(path); });
}
int mkdir(const char* path, mode_t mode) noexcept {
    return onPath(Call::MakeFolder, AT_FDCWD, path, [&] { return NEXT(mkdir)(path, mode); });
}

int stat(const char* path, struct stat* facts) noexcept {
    return onPath(Call::Look, AT_FDCWD, path, [&] { return NEXT(stat)(path, facts); });
}
int stat64(const char* path, struct stat64* facts) noexcept {
    return onPath(Call::Look, AT_FDCWD, path, [&] { return NEXT(stat64)(path, facts); });
}
int lstat(const char* path, struct stat* facts) noexcept {
    return onPath(Call::Look, AT_FDCWD, path, [&] { return NEXT(lstat)(path, facts); });
}
int lstat64(const char* path, struct stat64* facts) noexcept {
    return onPath(Call::Look, AT_FDCWD, path, [&] { return NEXT(lstat64)(path, facts); });
}
int statx(int folder, const char* path, int flags, unsigned int mask,
          struct statx* facts) noexcept {
    return onPath(Call::Look, folder, path,
                  [&] { return NEXT(statx)(folder, path, flags, mask, facts); });
}
int access(const char* path, int rights) noexcept {
    return onPath(Call::Look, AT_FDCWD, path, [&] { return NEXT(access)(path, rights); });
}
int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
    return onPath(Call::Change, folder, path,
                  [&] { return NEXT(fchmodat)(folder, path, mode, flags); });
}
int utimensat(int folder, const char* path, const timespec* times, int flags) noexcept {
    return onPath(Call::Change, folder, path,
                  [&] { return NEXT(utimensat)(folder, path, times, flags); });
}

} // extern "C"
// NOLINTEND(readability-identifier-naming)
