// Options for the look of all texts or marks of the card at once.
#pragma once

namespace zev {

struct Zevlin;

// The size of the small text: one of four. A checked size other than Normal goes back to Normal.
void mSmallerTextFont_Click(Zevlin& form);
void mNormalTextFont_Click(Zevlin& form);
void mLargerTextFont_Click(Zevlin& form);
void mBigTextFont_Click(Zevlin& form);

/// All texts bold, on every card from now on.
void mBold_Click(Zevlin& form);

/// All texts of the present card to the left, or all centred again.
void mLeftJustify_Click(Zevlin& form);

/// Solid squares in place of checkmarks.
void mFillIn_Click(Zevlin& form);

} // namespace zev
