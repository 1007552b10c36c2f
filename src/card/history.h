// The card's changes since it was opened, step by step, so that each can be taken back.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <vector>

#include "card/card_file.h"

namespace zev {

/// What one act of the player changed, by field number.
struct CardStep {
    struct Text {
        int number = 0;
        CardDocument::Text before;
        CardDocument::Text after;
    };
    struct Mark {
        int number = 0;
        bool isSet = false; ///< afterwards
    };
    struct Partner {
        CardPartner before;
        CardPartner after;
    };
    std::vector<Mark> marks;
    std::vector<Text> texts;
    std::optional<Partner> partner;

    [[nodiscard]] bool isEmpty() const { return marks.empty() && texts.empty() && !partner; }
};

/// What turns the one card into the other. Fields that only one of them has are passed over.
[[nodiscard]] CardStep stepBetween(const CardDocument& before, const CardDocument& after);

/// The step that takes this one back.
[[nodiscard]] CardStep reversed(CardStep step);

class CardHistory {
  public:
    /// The oldest steps beyond this are forgotten.
    static constexpr std::size_t mostSteps = 1000;

    /// Forgets everything: this card was just opened, or begun. `isSaved`: as its file has it.
    void begin(CardDocument card, bool isSaved);
    /// Makes a step of what differs from the card noted last, if anything does. What had been taken
    /// back can't be brought back then.
    void note(CardDocument card);
    /// The same card, dressed otherwise by an option: no step.
    void adopt(CardDocument card) { card_ = std::move(card); }
    /// The card was saved as it was noted last.
    void markSaved() { savedAt_ = position_; }
    /// The card's file is gone.
    void forgetSaved() { savedAt_.reset(); }
    /// Whether the card is as it was saved last.
    [[nodiscard]] bool isSaved() const { return savedAt_ == position_; }

    /// The card as it was noted last.
    [[nodiscard]] const CardDocument& card() const { return card_; }
    /// The step that undo would take back, or redo would do again; nullptr if there is none.
    [[nodiscard]] const CardStep* toUndo() const;
    [[nodiscard]] const CardStep* toRedo() const;
    /// Moves by one step; what is to be changed on the card.
    [[nodiscard]] CardStep undo();
    [[nodiscard]] CardStep redo();

  private:
    void apply(const CardStep& step);

    CardDocument card_;
    std::deque<CardStep> steps_;
    std::size_t position_ = 0;                ///< steps that stand
    std::optional<std::size_t> savedAt_ = 0U; ///< nothing: no step leads there
};

} // namespace zev
