#include "card_tool/spoken_names.h"

#include <fstream>
#include <map>
#include <set>

#include "card_tool/failure.h"

namespace card_tool {
namespace {

using Names = std::map<std::string, std::string>;

Names readNames(const std::filesystem::path& path) {
    std::ifstream file(path);
    if (!file) throw Failure("can't read " + path.string());
    Names names;
    std::set<std::string> taken;
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (line.empty() || line.front() == '#') continue;
        std::string place = path.filename().string();
        place += ":" + std::to_string(number) + ": ";
        const auto colon = line.find(": ");
        if (colon == std::string::npos) throw Failure(place + "no name");
        const std::string name = line.substr(colon + 2);
        if (!taken.insert(name).second) throw Failure(place + "two fields have the name " + name);
        if (!names.emplace(line.substr(0, colon), name).second)
            throw Failure(place + "the field has two names: " + line.substr(0, colon));
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
