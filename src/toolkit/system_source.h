// The facts as this system tells them. Internal to the toolkit's sources.
#pragma once

#include "toolkit/system.h"

namespace toolkit {

[[nodiscard]] SystemSource thisSystem();

} // namespace toolkit
