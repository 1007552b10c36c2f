#include "form/options_file.h"

#include "toolkit/base/ansi.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

std::string_view withoutComment(std::string_view value) {
    if (value.starts_with('\'')) return {};
    return toolkit::trim(value.substr(0, value.find("  '")));
}

} // namespace

std::optional<OptionLine> parseOption(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    OptionLine option;
    option.key = toolkit::lowerCase(toolkit::trim(line.substr(0, equals)));
    option.value = withoutComment(toolkit::trim(line.substr(equals + 1)));
    option.number = toolkit::roundToInteger(toolkit::leadingNumber(option.value));
    return option;
}

} // namespace zev
