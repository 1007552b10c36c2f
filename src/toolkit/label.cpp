#include "toolkit/label.h"

namespace toolkit {

std::string paintedText(std::string_view caption) {
    std::string painted;
    painted.reserve(caption.size());
    for (std::size_t index = 0; index < caption.size(); ++index) {
        if (caption[index] == '&' && ++index == caption.size()) break;
        painted += caption[index];
    }
    return painted;
}

} // namespace toolkit
