// The version that installed files bear.
#pragma once

#include <string>

#include "form/settings.h"
#include "layout/version.h"

namespace card_tool {

[[nodiscard]] inline std::string programVersion() {
    return zev::versionText(zev::versionMajor, zev::versionMinor, zev::versionRevision);
}

} // namespace card_tool
