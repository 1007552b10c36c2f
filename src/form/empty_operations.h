// Operations of the form that have nothing left to do. Nothing calls them; they are here to keep
// the form's list of operations complete.
#pragma once

namespace zev {

struct Zevlin;

void DiReSize(Zevlin& form);       ///< the picture is sized by SetImageSize
void Flatten(Zevlin& form);        ///< the pipeline of MPrint_Click flattens in place
void Flatten2(Zevlin& form);       ///< the same
void SetTabSequence(Zevlin& form); ///< a sequence is set by clicking alone

} // namespace zev
