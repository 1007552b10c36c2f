// Any bytes as an options file: every line that is a setting, as the program reads them.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "form/options_file.h"
#include "layout/skip_comment.h"
#include "toolkit/base/ansi.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void requireTrimmed(const std::string& text) { require(toolkit::trim(text) == text); }

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    toolkit::TextInput input(std::string(reinterpret_cast<const char*>(data), size));
    std::string version;
    while (!zev::skipComments(input, version)) {
        const auto option = zev::parseOption(input.readLine());
        if (!option) continue;
        requireTrimmed(option->key);
        requireTrimmed(option->value);
        require(option->key.find('=') == std::string::npos);
        require(option->value.find("  '") == std::string::npos);
    }
    return 0;
}
