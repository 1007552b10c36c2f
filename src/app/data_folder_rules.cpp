#include "app/data_folder_rules.h"

#include <algorithm>
#include <array>

namespace zev {

bool isPlayersFile(std::string_view lowerCaseName) {
    constexpr auto endings = std::to_array<std::string_view>({".zev", ".gif", ".bmp", ".txt"});
    return lowerCaseName == "definitions.ini" || lowerCaseName == "zev.ini" ||
           isReadme(lowerCaseName) || std::ranges::any_of(endings, [&](std::string_view ending) {
               return lowerCaseName.ends_with(ending);
           });
}

bool isGoodTarget(std::time_t source, std::time_t target) { return target >= source; }

bool isReadme(std::string_view lowerCaseName) { return lowerCaseName.starts_with("readme"); }

} // namespace zev
