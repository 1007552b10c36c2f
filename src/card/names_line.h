// The player's and the partner's name, and the line on the card that shows them.
#pragma once

#include "card/card_names.h"

namespace zev {

struct Zevlin;

void MMyID_Click(Zevlin& form);
void MPartnerID_Click(Zevlin& form);

/// Composes the names line: Replace forces it, FillEmpty leaves what stands there.
void ShowNames(Zevlin& form, NamesUpdate update);

} // namespace zev
