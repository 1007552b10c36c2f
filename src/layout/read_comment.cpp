#include "layout/read_comment.h"

#include "app/trace.h"
#include "app/zevlin.h"
#include "layout/skip_comment.h"

namespace zev {

bool SkipComment(Zevlin& form, toolkit::TextInput& input) {
    bool atEnd = true;
    trapped(form, "Error in SkipComment: #",
            [&] { atEnd = skipComments(input, form.VersionSeen); });
    return atEnd;
}

} // namespace zev
