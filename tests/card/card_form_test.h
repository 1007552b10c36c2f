// A card of few fields on the real form, for tests of the card's procedures.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/form_test.h"

namespace zev::test {

/// What a card file holds, line by line.
struct CardLines {
    std::string version = "2.0.0"; ///< empty: no version line
    std::string partner = "\"\",\"\"";
    std::vector<std::string> marks{"1,0,0"};
    std::vector<std::string> texts{"1,\"\",0"};
};
[[nodiscard]] std::string cardFile(const CardLines& lines);

/// Three marks and three text fields, of which the last is the names line.
class CardFormTest : public FormTest {
  protected:
    CardFormTest();

    /// Writes the card and opens it through the menu.
    void openCard(const std::string& name, const CardLines& lines);
    /// Opens a card by its name through the menu.
    void openNamed(const std::string& name);
    /// Chooses an item that must be there.
    static void choose(std::string_view captionPath);
    /// Opens the field, replaces its text by typing, and leaves the field open.
    void typeInOpenField(int field, std::string_view utf8);
    /// The same, and closes the field by a click on the bare card.
    void typeInto(int field, std::string_view utf8);
    /// Whether the trace has these lines, one directly after the other.
    [[nodiscard]] testing::AssertionResult
    tracedInOrder(const std::vector<std::string>& lines) const;
};

} // namespace zev::test
