#include "app/unload.h"

#include <string>

#include "app/trace.h"
#include "app/zevlin.h"
#include "card/modified.h"
#include "toolkit/number_text.h"
#include "toolkit/program.h"

namespace zev {

bool Form_Unload(Zevlin& form, int unloadMode) {
    Traceit(form, "Form_Unload " + toolkit::numberText(unloadMode));
    bool cancel = false;
    trapped(form, "Error in Form_Unload: #", [&] { cancel = CheckMod(form); });
    return cancel;
}

void MExit_Click(Zevlin& form) {
    Traceit(form, "MExit_Click " + std::string(truthText(form.CardModified)));
    trapped(form, "Error in MExit_Click: #", [&] {
        if (CheckMod(form)) return;
        if (!Form_Unload(form, unloadFromCode)) toolkit::endProgram();
    });
}

} // namespace zev
