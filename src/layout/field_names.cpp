#include "layout/field_names.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "toolkit/base/number_text.h"
#include "toolkit/picture/embedded_file.h"

namespace zev {
namespace {

struct Names {
    std::vector<std::string_view> marks; ///< element 0 is field 1
    std::vector<std::string_view> texts;
};

/// "mark 12 section, field" on each line, in the order of the numbers.
Names readNames() {
    const auto file = toolkit::embeddedFile("/card/names.txt");
    std::string_view rest(reinterpret_cast<const char*>(file.data()), file.size());
    Names names;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        const std::string_view name = line.substr(line.find(' ', line.find(' ') + 1) + 1);
        (line.starts_with("mark") ? names.marks : names.texts).push_back(name);
    }
    return names;
}

/// Read at the first question: a start asks none.
const Names& names() {
    static const Names read = readNames();
    return read;
}

std::string nameOr(const std::vector<std::string_view>& known, int number, const char* kind) {
    const auto place = static_cast<std::size_t>(number) - 1;
    if (number > 0 && place < known.size()) return std::string(known[place]);
    return std::string(kind) + toolkit::numberText(number);
}

} // namespace

std::string nameOfMark(int number) { return nameOr(names().marks, number, "Check box "); }
std::string nameOfText(int number) { return nameOr(names().texts, number, "Text area "); }

} // namespace zev
