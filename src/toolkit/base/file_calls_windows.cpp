#include "toolkit/base/file_calls.h"

#ifdef _WIN32

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

namespace toolkit::file_calls {
namespace {

// The calls take no more at once.
constexpr std::size_t largestChunk = std::size_t{1} << 30;

unsigned int chunk(std::size_t size) {
    return static_cast<unsigned int>(std::min(size, largestChunk));
}

int flagsOf(FileMode mode) {
    switch (mode) {
    case FileMode::Read:
        return _O_RDONLY;
    case FileMode::Replace:
    case FileMode::Beside:
        return _O_WRONLY | _O_CREAT | _O_TRUNC;
    case FileMode::Append:
        return _O_WRONLY | _O_CREAT | _O_APPEND;
    case FileMode::New:
        return _O_WRONLY | _O_CREAT | _O_EXCL;
    case FileMode::Update:
        break;
    }
    return _O_WRONLY;
}

std::error_code move(const std::filesystem::path& source, const std::filesystem::path& target,
                     DWORD flags) {
    if (MoveFileExW(source.c_str(), target.c_str(), flags) != 0) return {};
    return {static_cast<int>(GetLastError()), std::system_category()};
}

} // namespace

int openFile(const std::filesystem::path& path, FileMode mode) {
    const int sharing = mode == FileMode::Beside ? _SH_DENYRW : _SH_DENYNO;
    return _wsopen(path.c_str(), flagsOf(mode) | _O_BINARY | _O_NOINHERIT, sharing,
                   _S_IREAD | _S_IWRITE);
}

int readSome(int file, std::span<char> buffer) {
    return _read(file, buffer.data(), chunk(buffer.size()));
}

int writeSome(int file, std::string_view content) {
    return _write(file, content.data(), chunk(content.size()));
}

// The library's call is FlushFileBuffers; what isn't on a disk has no buffers.
bool syncFile(int file) {
    return _commit(file) == 0 ||
           GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(file))) != FILE_TYPE_DISK;
}

bool closeFile(int file) { return _close(file) == 0; }

std::error_code renameOver(const std::filesystem::path& source,
                           const std::filesystem::path& target) {
    return move(source, target, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

std::error_code renameToNew(const std::filesystem::path& source,
                            const std::filesystem::path& target) {
    return move(source, target, MOVEFILE_WRITE_THROUGH);
}

std::error_code renameOpenFile(int& file, const std::filesystem::path& source,
                               const std::filesystem::path& target, Existing existing) {
    if (!closeFile(std::exchange(file, -1))) return {errno, std::generic_category()};
    return existing == Existing::Kept ? renameToNew(source, target) : renameOver(source, target);
}

void removeOpenFile(int file, const std::filesystem::path& path) {
    if (file != -1) closeFile(file);
    _wunlink(path.c_str());
}

// A rename that writes through has waited for the names already.
std::error_code syncFolder(const std::filesystem::path& /*folder*/) { return {}; }

} // namespace toolkit::file_calls

#endif
