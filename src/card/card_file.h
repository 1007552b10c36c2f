// The card file: which marks are set and what each text says, by field number.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/base/text_input.h"

namespace zev {

constexpr std::string_view cardExtension = ".zev";
/// The name under which a card goes through a rebuild of the screen.
constexpr std::string_view temporaryCardName = "$$Tempcard";

/// Bit-switches of a text record.
namespace text_switch {
constexpr int bold = 1;
constexpr int italic = 2;
constexpr int left = 4;
constexpr int highlight = 8;
} // namespace text_switch

struct TextRecord {
    int number = 0;
    std::string text; ///< double quotes put back, ampersands as they stand in the file
    int switches = 0; ///< new format only
    /// What the record says of the text's style.
    enum class Style {
        Switches, ///< everything, in `switches`
        Suffix,   ///< bold, italic and left, by an old record's flags, in `switches`
        None,     ///< nothing, without flags in an old record: the field keeps its style
    } style = Style::None;
};

struct MarkRecord {
    int number = 0;
    bool set = false;
};

struct CardPartner {
    std::string name;
    std::string number;
    friend bool operator==(const CardPartner&, const CardPartner&) = default;
};

/// Reads a card record by record, so that what was read stands when the next one fails. Failures
/// are those of TextInput; 13 for a mark's state that is no truth value.
class CardReader {
  public:
    using Skip = std::function<bool(toolkit::TextInput&)>;
    /// `versionSeen` is what `skip` keeps up to date; it decides each record's format.
    CardReader(std::string content, const std::string& versionSeen, Skip skip);

    [[nodiscard]] std::string readPartnerName();
    /// The value after the name, in the same record.
    [[nodiscard]] std::string readPartnerNumber();
    [[nodiscard]] int readCount();
    [[nodiscard]] MarkRecord readMark();
    [[nodiscard]] TextRecord readText();
    /// Whether nothing but comments follows.
    [[nodiscard]] bool isAtEnd() { return skip_(input_); }

  private:
    [[nodiscard]] bool hasSwitches() const;

    toolkit::TextInput input_;
    const std::string& versionSeen_;
    Skip skip_;
};

/// A mark's state as a truth value: "1" and "0", any number (true when not 0), "True" and "False"
/// in any case; else failure 13.
[[nodiscard]] bool truthValue(std::string_view state);

/// The content of a card. While the program runs, this is what counts; a file may hold a copy.
struct CardDocument {
    std::string cardName;
    std::string programVersion;
    CardPartner partner;
    std::vector<bool> marks; ///< element 0 is field 1
    struct Text {
        std::string text; ///< raw, as in a field's Tag: ampersands doubled, suit escapes in it
        int switches = 0;
        friend bool operator==(const Text&, const Text&) = default;
    };
    std::vector<Text> texts;
    friend bool operator==(const CardDocument&, const CardDocument&) = default;
};

/// Reads what writeCard wrote, whole or not at all; the card's name isn't in it. Failures are those
/// of CardReader, and 9 for a field number beyond the count in the file.
[[nodiscard]] CardDocument readCard(std::string content);

/// Whether the content is that of a card which a player can open, by this or an older version: it
/// has marks and texts, and each of them can be read.
[[nodiscard]] bool isCard(std::string content);

} // namespace zev
