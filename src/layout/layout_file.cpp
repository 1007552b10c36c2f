#include "layout/layout_file.h"

#include <utility>

namespace zev {
namespace {

constexpr int oldCheck = 80;
constexpr int check = 252;
constexpr int filledSquare = 110;
constexpr int oldCircle = 153;
constexpr int circle = 161;

/// A font's name and three sizes.
constexpr int fontValueCount = 4;

void readPlace(toolkit::TextInput& input, FieldRecord& record) {
    record.left = input.readNumber();
    record.top = input.readNumber();
    record.width = input.readNumber();
    record.height = input.readNumber();
}

void dropSwitches(toolkit::TextInput& input) { static_cast<void>(input.readInteger()); }

} // namespace

int repairedSymbol(int symbol, bool fillIn) {
    if (symbol == oldCheck) symbol = check;
    if (symbol == check || symbol == filledSquare) return fillIn ? filledSquare : check;
    return symbol == oldCircle ? circle : symbol;
}

int installedLayout(int twipsPerPixel) {
    constexpr int middle = 13;
    if (twipsPerPixel == middle) return middle;
    return twipsPerPixel < middle ? 12 : 15;
}

LayoutReader::LayoutReader(std::string content, Skip skip)
    : input_(std::move(content)), skip_(std::move(skip)) {}

LayoutReader::Environment LayoutReader::readEnvironment() {
    skip_(input_);
    Environment environment;
    environment.twips = input_.readInteger();
    environment.screenWidth = input_.readNumber();
    return environment;
}

void LayoutReader::skipFontLine() {
    skip_(input_);
    // Old files have sizes in the notation of the player's country ("11,00"), so they aren't read
    // as numbers.
    for (int value = 0; value < fontValueCount; ++value) static_cast<void>(input_.readText());
}

FileOffsets LayoutReader::readOffsets() {
    skip_(input_);
    FileOffsets offsets{};
    for (float& offset : offsets) offset = input_.readNumber();
    static_cast<void>(input_.readNumber());
    return offsets;
}

int LayoutReader::readCount() {
    skip_(input_);
    return input_.readInteger();
}

FieldRecord LayoutReader::readMark(bool hasSwitches) {
    skip_(input_);
    FieldRecord record;
    record.number = input_.readInteger();
    readPlace(input_, record);
    record.color = input_.readInteger();
    record.size = input_.readInteger();
    record.symbol = input_.readInteger();
    if (hasSwitches) dropSwitches(input_);
    return record;
}

FieldRecord LayoutReader::readText() {
    skip_(input_);
    FieldRecord record;
    record.number = input_.readInteger();
    readPlace(input_, record);
    record.color = input_.readInteger();
    record.size = input_.readInteger();
    dropSwitches(input_);
    return record;
}

void LayoutReader::readTabTable(TabTable& table) {
    if (skip_(input_)) return;
    const int largest = input_.readInteger();
    table.clear();
    table.growTo(largest);
    // Blank lines behind the last pair are passed over before the end is tested.
    for (int pair = 0; pair < largest && !skip_(input_); ++pair) {
        const int item = input_.readInteger();
        table.set(item, input_.readInteger());
    }
}

} // namespace zev
