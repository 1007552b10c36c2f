// The layout file: where every field of the card lies and how it looks.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "layout/tab_table.h"
#include "toolkit/base/text_input.h"

namespace zev {

/// The layout's file name in the data folder.
constexpr const char* layoutFileName = "Definitions.Ini";
/// The name under which a check-point sets the layout's file aside.
constexpr const char* setAsideName = "$$TempDef.Ini";

/// Characters of the mark font.
namespace mark_symbol {
constexpr char check = '\xFC';  // 252
constexpr char square = 'n';    // 110
constexpr char circle = '\xA1'; // 161
} // namespace mark_symbol

/// Ink offsets of a layout in its file's order: kind 1..3, in it size 1..3, in it left and bottom.
constexpr int offsetCount = 18;
using FileOffsets = std::array<float, offsetCount>;

/// A field's record. Places are pixels at design size, where the card is 1198 pixels wide.
struct FieldRecord {
    int number = 0; ///< position in the list; another value marks a deleted field
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    int color = 1;  ///< 1 black, 2 red, 3 blue
    int size = 1;   ///< 1 small, 2 medium, 3 large
    int symbol = 0; ///< marks only: character of the mark font
};

struct NamedSizes {
    std::string name;
    std::array<float, 3> sizes{}; ///< points at design size
};

/// The character that a symbol has today: 80 was once a check mark and 153 a circle, and check
/// marks are squares or checks, as the option says.
[[nodiscard]] int repairedSymbol(int symbol, bool fillIn);

/// 12, 13 or 15: the installed layout for a screen.
[[nodiscard]] int installedLayout(int twipsPerPixel);

/// Reads a layout in the order of the file, a value group at a time, so that each group's effect
/// stands when the next one fails. All failures are those of TextInput, and 9 for a tab cell
/// outside the table.
class LayoutReader {
  public:
    /// `skip` moves the input to the next data line (see skipComments).
    using Skip = std::function<bool(toolkit::TextInput&)>;
    LayoutReader(std::string content, Skip skip);

    struct Environment {
        int twips = 0;
        float screenWidth = 0; ///< twips; too large for 16 bits on wide screens
    };
    [[nodiscard]] Environment readEnvironment();
    /// A font line: its values are dropped unread.
    void skipFontLine();
    [[nodiscard]] FileOffsets readOffsets();
    [[nodiscard]] int readCount();
    /// 9 values, or 8 where the layout has no bit-switches.
    [[nodiscard]] FieldRecord readMark(bool hasSwitches);
    /// 8 values, whatever the version.
    [[nodiscard]] FieldRecord readText();
    /// Fills the table anew where the file has a tab part; leaves it alone where the file ends.
    void readTabTable(TabTable& table);

  private:
    toolkit::TextInput input_;
    Skip skip_;
};

/// All that a layout file says. Offsets and places are whole pixels already.
struct LayoutDocument {
    std::string programVersion;
    int twips = 15;
    float screenWidth = 0; ///< twips
    NamedSizes textFont;
    NamedSizes markFont;
    std::string suitFontName;
    FileOffsets offsets{};
    std::vector<FieldRecord> marks; ///< the record's place gives the field number
    std::vector<FieldRecord> texts;
    const TabTable* tabTable = nullptr;
};

} // namespace zev
