// Size, colour and shape of the next new field: groups of which one item is checked.
#pragma once

namespace zev {

struct Zevlin;

void MSmall_Click(Zevlin& form);
void MMedium_Click(Zevlin& form);
void MLarge_Click(Zevlin& form);
void MBlack_Click(Zevlin& form);
void MRed_Click(Zevlin& form);
void MBlue_Click(Zevlin& form);
void MCheck_Click(Zevlin& form);
void MCircle_Click(Zevlin& form);
void MText_Click(Zevlin& form);

} // namespace zev
