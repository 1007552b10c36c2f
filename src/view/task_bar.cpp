#include "view/task_bar.h"

#include "form/trace.h"
#include "form/zevlin.h"

namespace zev {

toolkit::TaskBar GetTaskBarSize(Zevlin& form) {
    Traceit(form, "GetTaskBarSize");
    toolkit::TaskBar bar;
    trapped(form, "Error in GetTaskBarSize: #", [&] { bar = toolkit::taskBar(); });
    return bar;
}

} // namespace zev
