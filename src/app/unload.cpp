#include "app/unload.h"

#include <string>

#include "app/hooks.h"
#include "card/check_mod.h"
#include "card/chooser_events.h"
#include "form/options.h"
#include "form/printer_facts.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/program.h"
#include "view/color_panel.h"

namespace zev {

bool Form_Unload(Zevlin& form, int unloadMode) {
    // While a job runs, the card is between two rebuilds.
    bool cancel = form.Printing;
    procedure(form, "Form_Unload", toolkit::numberText(unloadMode), [&] {
        if (cancel) return;
        if (form.BCancel.Visible) {
            cancel = true;
            return BCancel_Click(form);
        }
        // It would lie over the chooser in which the card is named.
        if (form.ColorPic.Visible) ColorBut_Click(form, colorPanelCancel);
        cancel = CheckMod(form);
        if (cancel) return;
        completeOptions(form);
        releasePrinter(form);
        restoreDefaultPrinter(form);
        if (!form.WheelHooked) return;
        unhookWheel(form);
        unhookMenus(form);
    });
    return cancel;
}

void MExit_Click(Zevlin& form) {
    procedure(form, "MExit_Click", truthText(form.CardModified), [&] {
        if (CheckMod(form)) return;
        if (!Form_Unload(form, unloadFromCode)) toolkit::leaveProgram();
    });
}

} // namespace zev
