#include "toolkit/picture/embedded_file.h"

#include <QtCore/QResource>

#include "toolkit/base/error.h"

namespace toolkit {

std::span<const std::byte> embeddedFile(const char* name) {
    const QResource resource(QString(u':') + QString::fromLatin1(name));
    if (!resource.isValid() || resource.data() == nullptr)
        throw RunTimeError(Failure::FileNotFound);
    return std::as_bytes(std::span(resource.data(), static_cast<std::size_t>(resource.size())));
}

} // namespace toolkit
