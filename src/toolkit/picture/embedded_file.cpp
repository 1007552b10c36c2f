#include "toolkit/picture/embedded_file.h"

#include <QtCore/QResource>

#include "toolkit/base/error.h"

// In a static library nothing refers to the resources by itself, so they would be left out. The
// macro only works outside of any namespace.
static void initialiseResources() { Q_INIT_RESOURCE(toolkit); }

namespace toolkit {

std::span<const std::byte> embeddedFile(const char* name) {
    static const bool initialised = (initialiseResources(), true);
    const QResource resource(QString(u':') + QString::fromLatin1(name));
    if (!initialised || !resource.isValid() || resource.data() == nullptr)
        throw RunTimeError(Failure::FileNotFound);
    return std::as_bytes(std::span(resource.data(), static_cast<std::size_t>(resource.size())));
}

} // namespace toolkit
