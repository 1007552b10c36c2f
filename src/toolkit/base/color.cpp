#include "toolkit/base/color.h"

#include <array>

#include "toolkit/base/error.h"

namespace toolkit {

Color qbColor(int index) {
    constexpr std::array<Color, 16> palette{
        rgb(0, 0, 0),       rgb(0, 0, 128),   rgb(0, 128, 0),   rgb(0, 128, 128),
        rgb(128, 0, 0),     rgb(128, 0, 128), rgb(128, 128, 0), rgb(192, 192, 192),
        rgb(128, 128, 128), rgb(0, 0, 255),   rgb(0, 255, 0),   rgb(0, 255, 255),
        rgb(255, 0, 0),     rgb(255, 0, 255), rgb(255, 255, 0), rgb(255, 255, 255)};
    if (index < 0 || index > 15) throw RunTimeError(Failure::InvalidProcedureCall);
    return palette[static_cast<std::size_t>(index)];
}

} // namespace toolkit
