#include "output/print_options.h"

#include "form/options.h"
#include "form/trace.h"
#include "form/zevlin.h"

namespace zev {
namespace {

void toggle(Zevlin& form, toolkit::MenuItem& chosen, toolkit::MenuItem& other) {
    chosen.Checked = !chosen.Checked;
    if (chosen.Checked) other.Checked = false;
    if (!form.Initializing) IniWrite(form);
}

} // namespace

void mPrintAlt_Click(Zevlin& form) {
    if (form.Initializing) return;
    procedure(form, "mPrintAlt_Click", [&] {
        form.mPrintAlt.Checked = !form.mPrintAlt.Checked;
        IniWrite(form);
        form.PrintMethod = form.mPrintAlt.Checked ? alternatePrintMethod : primaryPrintMethod;
    });
}

void MColor_Click(Zevlin& form) {
    procedure(form, "MColor_Click", [&] { toggle(form, form.MColor, form.MMono); });
}

void MMono_Click(Zevlin& form) {
    procedure(form, "MMono_Click", [&] { toggle(form, form.MMono, form.MColor); });
}

} // namespace zev
