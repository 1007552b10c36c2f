// The partner's card, and both cards after each other.
#pragma once

namespace zev {

struct Zevlin;

/// The card with the partner's name first in its names line, which is put back afterwards.
void MPrintPartner_Click(Zevlin& form);

/// The player's card, then the partner's.
void MPrintBoth_Click(Zevlin& form);

} // namespace zev
