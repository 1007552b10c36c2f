// What a card must hold by the documented rules, worked out from the events alone, without a look
// at the form's fields.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "card/card_file.h"

namespace zev::test {

/// A text as a field keeps it: every ampersand doubled, a pair counts as one.
[[nodiscard]] std::string rawText(std::string_view typed);
/// A raw text as its edit box shows it: runs of ampersands are one.
[[nodiscard]] std::string typedText(std::string_view raw);

/// A player's name and number, as an answer to the question for it tells them.
[[nodiscard]] CardPartner playerFrom(std::string_view answer);

class CardAccount {
  public:
    /// The field whose edit box is open, with its state when it was opened.
    struct OpenField {
        int field = 0;
        std::string typed; ///< what stands in the box
        std::string opening;
        int openingSwitches = 0;
    };

    /// Marks, texts and styles, name and partner.
    CardDocument card;
    bool star = false;
    std::optional<OpenField> open;

    /// The card with what is typed.
    [[nodiscard]] CardDocument withTyping() const;
    [[nodiscard]] bool isTyping() const;

    [[nodiscard]] CardDocument::Text& text(int field);
    void toggleMark(int mark);
    void toggle(int field, int flag);
    void setAll(int flag, bool on);

    void openText(int field);
    void commit();
    void undo(bool boldCard);
    /// A paste that replaces the whole text.
    void pasteWhole(const std::string& typed);

    void clear(bool boldCard);
    /// The names line is made of both names; where it isn't forced only an empty one is filled.
    void composeNames(int namesField, const CardPartner& mine, bool isForced);
    void load(const CardDocument& stored, bool boldCard);

  private:
    [[nodiscard]] std::string namesLine(const std::string& present, const std::string& mine,
                                        bool isForced) const;
};

/// The card as its file gives it back.
[[nodiscard]] CardDocument asStored(CardDocument card);
/// The card without what a layout of this many fields can't show.
[[nodiscard]] CardDocument fittedTo(CardDocument card, int marks, int texts);
/// What tells the two apart, empty if nothing does. Fields that are blank at the end don't count,
/// nor does the version.
[[nodiscard]] std::string difference(const CardDocument& expected, const CardDocument& found);

} // namespace zev::test
