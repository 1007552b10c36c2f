#include "layout/read_comment.h"

#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/skip_comment.h"

namespace zev {

bool SkipComment(Zevlin& form, toolkit::TextInput& input) {
    bool atEnd = true;
    trapped(form, "Error in SkipComment: #",
            [&] { atEnd = skipComments(input, form.VersionSeen); });
    return atEnd;
}

} // namespace zev
