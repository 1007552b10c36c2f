#include "app/hooks.h"

#include "form/run_procedure.h"
#include "form/zevlin.h"
#include "help/menu_tooltips.h"
#include "marks/move_card.h"

namespace zev {

void hookWheel(Zevlin& form) { form.MouseWheel = run(form, MouseWheel); }

void unhookWheel(Zevlin& form) { form.MouseWheel = {}; }

void hookMenus(Zevlin& form) {
    form.MenuSelect = [&form](const toolkit::MenuSelection& selection) {
        showDescription(form, selection);
    };
    form.MenuDescription = [&form](std::string_view caption) { return Description(form, caption); };
}

void unhookMenus(Zevlin& form) {
    form.MenuSelect = {};
    form.MenuDescription = {};
}

} // namespace zev
