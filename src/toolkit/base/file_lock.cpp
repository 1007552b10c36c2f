#include "toolkit/base/file_lock.h"

#include <utility>

#include "toolkit/base/error.h"
#include "toolkit/base/file_handle.h"

namespace toolkit {

FileLock::FileLock() = default;

FileLock::~FileLock() { release(); }

FileLock::FileLock(FileLock&&) noexcept = default;

FileLock& FileLock::operator=(FileLock&& other) noexcept {
    release();
    file_ = std::move(other.file_);
    return *this;
}

bool FileLock::take(const std::filesystem::path& file) {
    release();
    try {
        file_ = std::make_unique<FileHandle>(file, FileMode::Beside);
    } catch (const RunTimeError&) {
        // Another's, or nobody's.
    }
    return isHeld();
}

bool FileLock::isHeld() const { return file_ != nullptr; }

void FileLock::release() {
    if (const auto file = std::exchange(file_, nullptr)) file->discard();
}

} // namespace toolkit
