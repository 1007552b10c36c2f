#include "layout/position.h"

#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"

namespace zev {

void PositionSave(Zevlin& form) {
    procedure(form, "PositionSave", [&] {
        if (form.Printing || form.Zooming) commitOpenField(form);
        if (form.Initializing) return;
        form.SavedLeft = form.P1.Left;
        form.SavedTop = form.P1.Top;
        form.SavedWidth = form.P1.Width;
    });
}

void PositionRestore(Zevlin& form) { Traceit(form, "PositionRestore"); }

} // namespace zev
