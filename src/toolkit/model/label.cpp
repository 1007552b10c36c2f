#include "toolkit/model/label.h"

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

std::string captionFor(std::string_view text) {
    std::string caption;
    for (const char character : text) caption.append(character == '&' ? 2 : 1, character);
    return caption;
}

} // namespace toolkit
