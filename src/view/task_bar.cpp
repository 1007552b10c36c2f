#include "view/task_bar.h"

#include "form/trace.h"
#include "form/zevlin.h"

namespace zev {

toolkit::TaskBar GetTaskBarSize(Zevlin& form) {
    toolkit::TaskBar bar;
    procedure(form, "GetTaskBarSize", [&] { bar = toolkit::taskBar(); });
    return bar;
}

} // namespace zev
