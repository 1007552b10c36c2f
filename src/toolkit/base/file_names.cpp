#include "toolkit/base/file_names.h"

#include <algorithm>
#include <array>
#include <string>

#include "toolkit/base/ansi.h"

namespace toolkit {
namespace {

bool isControl(char character) { return code(character) < 32 || code(character) == 127; }

#ifdef _WIN32
constexpr std::string_view forbidden = "<>:\"/\\|?*";

bool isDevice(std::string_view name) {
    static constexpr auto devices = std::to_array<std::string_view>(
        {"con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4", "com5", "com6", "com7",
         "com8", "com9", "lpt1", "lpt2", "lpt3", "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"});
    if (name == "." || name == "..") return true;
    const std::string stem = lowerCase(trim(name.substr(0, name.find('.'))));
    return std::ranges::find(devices, stem) != devices.end();
}
#else
constexpr std::string_view forbidden = "/";

bool isDevice(std::string_view name) { return name == "." || name == ".."; }
#endif

} // namespace

bool isPossibleFileName(std::string_view name) {
    return !name.empty() && std::ranges::none_of(name, isControl) &&
           name.find_first_of(forbidden) == std::string_view::npos && !isDevice(name) &&
           utf8FromAnsi(name).size() <= longestFileName;
}

} // namespace toolkit
