// The partner's card, and both cards after each other.
#pragma once

namespace zev {

struct Zevlin;

/// Gives the card the names line of the partner's card.
void showPartnerLine(Zevlin& form);

/// Prints the card with the partner's name first in its names line, and puts the line back.
void MPrintPartner_Click(Zevlin& form);

/// The player's card, then the partner's.
void MPrintBoth_Click(Zevlin& form);

} // namespace zev
