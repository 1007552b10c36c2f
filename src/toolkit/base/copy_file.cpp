#include "toolkit/base/copy_file.h"

#include <cerrno>
#include <system_error>

#include "toolkit/base/error.h"
#include "toolkit/base/file_calls.h"
#include "toolkit/base/file_handle.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;

void copyTime(const fs::path& source, const fs::path& target) {
    std::error_code error;
    const auto time = fs::last_write_time(source, error);
    checkFile(source, error);
    fs::last_write_time(target, time, error);
    checkFile(target, error);
}

} // namespace

void copyFile(const fs::path& source, const fs::path& target) {
    requireFile(source);
    std::error_code ignored;
    // Opening a file for writing on top of itself would empty it.
    if (fs::equivalent(source, target, ignored)) throw RunTimeError(Failure::PermissionDenied);
    writeFile(target, readFile(source));
    copyTime(source, target);
}

void copyNewFile(const fs::path& source, const fs::path& target) {
    requireFile(source);
    writeNewFile(target, readFile(source));
    copyTime(source, target);
}

} // namespace toolkit
