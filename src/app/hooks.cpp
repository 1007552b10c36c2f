#include "app/hooks.h"

#include "form/run_procedure.h"
#include "form/zevlin.h"
#include "marks/move_card.h"

namespace zev {

void hookWheel(Zevlin& form) { form.MouseWheel = run(form, MouseWheel); }

void unhookWheel(Zevlin& form) { form.MouseWheel = {}; }

} // namespace zev
