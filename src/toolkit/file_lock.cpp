#include "toolkit/file_lock.h"

#include <QtCore/QLockFile>
#include <QtCore/QString>

namespace toolkit {

struct FileLock::Implementation {
    explicit Implementation(const std::filesystem::path& path)
        : file(QString::fromStdU16String(path.generic_u16string())) {
        // However old it is: only whether its process lives counts.
        file.setStaleLockTime(0);
    }
    QLockFile file;
};

FileLock::FileLock() = default;
FileLock::~FileLock() = default;
FileLock::FileLock(FileLock&&) noexcept = default;
FileLock& FileLock::operator=(FileLock&&) noexcept = default;

bool FileLock::take(const std::filesystem::path& file) {
    implementation_ = std::make_unique<Implementation>(file);
    if (!implementation_->file.tryLock(0)) implementation_.reset();
    return isHeld();
}

bool FileLock::isHeld() const { return implementation_ != nullptr; }

void FileLock::release() { implementation_.reset(); }

} // namespace toolkit
