#include "layout/initialize_run.h"

#include "form/trace.h"
#include "toolkit/base/number_text.h"

namespace zev {

void traceFailedInitialize(Zevlin& form, const toolkit::RunTimeError& failure, int step) {
    traceFailure(form, "Error in Initialize ", failure,
                 ", after step " + toolkit::numberText(step));
}

} // namespace zev
