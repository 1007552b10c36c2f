// The operations of the form that do nothing and that nothing calls: its list of operations holds
// them, so they stay, here and nowhere else.
#pragma once

namespace zev {

struct Zevlin;

void DiReSize(Zevlin& form);       ///< the picture is sized by SetImageSize
void Flatten(Zevlin& form);        ///< the pipeline of MPrint_Click flattens in place
void Flatten2(Zevlin& form);       ///< the same
void SetTabSequence(Zevlin& form); ///< a sequence is set by clicking alone

} // namespace zev
