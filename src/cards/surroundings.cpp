#include "cards/surroundings.h"

#include <fstream>
#include <istream>
#include <ostream>

#include "cards/card_list.h"
#include "cards/message_text.h"
#include "toolkit/base/error.h"
#include "toolkit/base/files.h"

namespace zev {
namespace {

constexpr const char* standardInput = "-";

void addLines(CardList& list, std::istream& names, char end) {
    std::string name;
    while (std::getline(names, name, end)) {
        if (!name.empty()) list.add(name);
    }
}

void addFrom(CardList& list, const CommandOptions& options, std::istream& standard) {
    const char end = options.nullSeparated ? '\0' : '\n';
    if (options.filesFrom.empty()) return;
    if (options.filesFrom == standardInput) {
        addLines(list, standard, end);
        if (standard.bad()) throw Trouble{"the standard input can't be read"};
        return;
    }
    std::ifstream file(pathOf(options.filesFrom), std::ios::binary);
    if (file) addLines(list, file, end);
    if (file.bad() || !file.eof()) throw Trouble{onOneLine(options.filesFrom) + ": can't be read"};
}

} // namespace

void forEachFile(const CommandOptions& options, const Surroundings& surroundings,
                 FoldersAsked folders, const TakeFile& take, const Complain& complain) {
    CardList list({.dataFolder = surroundings.dataFolder,
                   .installedFolder = surroundings.installedFolder,
                   .takesFolders = folders == FoldersAsked::Taken},
                  take, complain);
    for (const std::string& card : options.cards) list.add(card);
    addFrom(list, options, surroundings.in);
}

bool forEachCard(const CommandOptions& options, const Surroundings& surroundings,
                 FoldersAsked folders, const TakeReading& take) {
    bool isWell = true;
    const auto complain = [&](const std::string& message) {
        surroundings.err << message << '\n';
        isWell = false;
    };
    const auto read = [&](const std::filesystem::path& file) {
        try {
            take(file, readForgivingly(toolkit::readFile(file)));
        } catch (const toolkit::RunTimeError& failure) {
            complain(onOneLine(utf8Of(file)) + ": " + failure.description());
        }
    };
    forEachFile(options, surroundings, folders, read, complain);
    return isWell;
}

void tellFaults(std::ostream& err, const std::filesystem::path& file, const CardReading& reading) {
    for (const CardFault& fault : reading.faults)
        err << onOneLine(utf8Of(file)) << ':' << fault.line << ": " << onOneLine(fault.what)
            << '\n';
}

} // namespace zev
