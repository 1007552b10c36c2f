#include "card_tool/spoken_names.h"

#include <fstream>
#include <map>
#include <set>

#include "card_tool/failure.h"

namespace card_tool {
namespace {

using Names = std::map<std::string, std::string>;

/// Takes one line over; what is wrong with it, empty if nothing is.
std::string takeLine(const std::string& line, Names& names, std::set<std::string>& taken) {
    const auto colon = line.find(": ");
    if (colon == std::string::npos) return "no name";
    const std::string name = line.substr(colon + 2);
    if (!taken.insert(name).second) return "two fields have the name " + name;
    const std::string field = line.substr(0, colon);
    return names.emplace(field, name).second ? "" : "the field has two names: " + field;
}

Names readNames(const std::filesystem::path& path) {
    std::ifstream file(path);
    if (!file) throw Failure("can't read " + path.string());
    Names names;
    std::set<std::string> taken;
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (line.empty() || line.front() == '#') continue;
        const std::string fault = takeLine(line, names, taken);
        if (fault.empty()) continue;
        throw Failure(path.filename().string() + ":" + std::to_string(number) + ": " + fault);
    }
    return names;
}

void append(std::string& lines, const char* kind, const auto& places, Names& names) {
    int number = 0;
    for (const auto& place : places) {
        const auto name = names.extract(place.id);
        if (name.empty()) throw Failure("the field has no spoken name: " + place.id);
        lines += std::string(kind) + " " + std::to_string(++number) + " " + name.mapped() + "\n";
    }
}

} // namespace

std::string spokenNames(const std::filesystem::path& path, const Sheet& sheet) {
    Names names = readNames(path);
    std::string lines;
    append(lines, "mark", sheet.marks, names);
    append(lines, "text", sheet.texts, names);
    if (!names.empty()) throw Failure("a name for no field: " + names.begin()->first);
    return lines;
}

} // namespace card_tool
