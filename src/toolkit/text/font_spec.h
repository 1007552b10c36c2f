// A font by its name.
#pragma once

#include <string>

namespace toolkit {

constexpr double twipsPerPoint = 20;

/// What a control says about its font. Size in points; fractions count.
struct FontSpec {
    std::string Name{"Arial"};
    float Size = 8.25F;
    bool Bold = false;
    bool Italic = false;

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

} // namespace toolkit
