// Undo and redo of the card: each mark, each text with its style, back to the card's opening.
#pragma once

namespace zev {

struct Zevlin;

/// The card was just opened, begun or brought back; `isSaved`: it is as its file has it.
void beginHistory(Zevlin& form, bool isSaved);

/// Makes a step of what has changed, and tells the menu what can be undone. Does nothing while
/// something else uses the controls. The text that is open becomes a step when it is left.
void noteCardStep(Zevlin& form);

/// The card was saved: going back to it takes the star away.
void noteSavedCard(Zevlin& form);

/// An option has changed the style of all texts, which is no step of its own.
void adoptDressedCard(Zevlin& form);

void MUndo_Click(Zevlin& form);
void MRedo_Click(Zevlin& form);

} // namespace zev
