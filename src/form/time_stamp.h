// The line at the foot of the card: its name, date and time, and the credit line beside it.
#pragma once

namespace zev {

struct Zevlin;

/// Renews the stamp; during a zoom it keeps its text.
void MakeTimeStamp(Zevlin& form);

/// Puts the stamp into the bottom right corner of the card, in the card's scale.
void PositionTimeStamp(Zevlin& form);

/// Sizes the credit line and centres it left of the stamp.
void PositionCreditLabel(Zevlin& form);

} // namespace zev
