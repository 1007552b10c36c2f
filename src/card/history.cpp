#include "card/history.h"

#include <algorithm>
#include <utility>

namespace zev {

CardStep stepBetween(const CardDocument& before, const CardDocument& after) {
    CardStep step;
    const std::size_t marks = std::min(before.marks.size(), after.marks.size());
    for (std::size_t i = 0; i < marks; ++i) {
        if (before.marks[i] != after.marks[i])
            step.marks.push_back({.number = static_cast<int>(i) + 1, .isSet = after.marks[i]});
    }
    const std::size_t texts = std::min(before.texts.size(), after.texts.size());
    for (std::size_t i = 0; i < texts; ++i) {
        if (before.texts[i] != after.texts[i])
            step.texts.push_back({static_cast<int>(i) + 1, before.texts[i], after.texts[i]});
    }
    if (before.partner != after.partner)
        step.partner = CardStep::Partner{.before = before.partner, .after = after.partner};
    return step;
}

CardStep reversed(CardStep step) {
    for (CardStep::Mark& mark : step.marks) mark.isSet = !mark.isSet;
    for (CardStep::Text& text : step.texts) std::swap(text.before, text.after);
    if (step.partner) std::swap(step.partner->before, step.partner->after);
    return step;
}

void CardHistory::begin(CardDocument card, bool isSaved) {
    card_ = std::move(card);
    steps_.clear();
    position_ = 0;
    savedAt_.reset();
    if (isSaved) savedAt_ = 0;
}

void CardHistory::note(CardDocument card) {
    CardStep step = stepBetween(card_, card);
    card_ = std::move(card);
    if (step.isEmpty()) return;
    steps_.resize(position_);
    if (savedAt_ && *savedAt_ > position_) savedAt_.reset();
    steps_.push_back(std::move(step));
    ++position_;
    if (steps_.size() <= mostSteps) return;
    steps_.pop_front();
    --position_;
    if (savedAt_) savedAt_ = *savedAt_ > 0 ? std::optional(*savedAt_ - 1) : std::nullopt;
}

const CardStep* CardHistory::toUndo() const {
    return position_ > 0 ? &steps_[position_ - 1] : nullptr;
}

const CardStep* CardHistory::toRedo() const {
    return position_ < steps_.size() ? &steps_[position_] : nullptr;
}

CardStep CardHistory::undo() {
    CardStep step = reversed(steps_.at(position_ - 1));
    --position_;
    apply(step);
    return step;
}

CardStep CardHistory::redo() {
    CardStep step = steps_.at(position_);
    ++position_;
    apply(step);
    return step;
}

void CardHistory::apply(const CardStep& step) {
    for (const CardStep::Mark& mark : step.marks) {
        const auto place = static_cast<std::size_t>(mark.number) - 1;
        if (place < card_.marks.size()) card_.marks[place] = mark.isSet;
    }
    for (const CardStep::Text& text : step.texts) {
        const auto place = static_cast<std::size_t>(text.number) - 1;
        if (place >= card_.texts.size()) continue;
        // What an option has changed of the style since then stays.
        const int changed = text.before.switches ^ text.after.switches;
        CardDocument::Text& now = card_.texts[place];
        now.text = text.after.text;
        now.switches = (now.switches & ~changed) | (text.after.switches & changed);
    }
    if (step.partner) card_.partner = step.partner->after;
}

} // namespace zev
