#include "layout/check_point.h"

#include "app/trace.h"
#include "app/zevlin.h"
#include "layout/save_layout.h"
#include "toolkit/files.h"

namespace zev {
namespace {

constexpr const char* setAsideName = "$$TempDef.Ini";

} // namespace

void CheckPointShapes(Zevlin& form) {
    Traceit(form, "CheckPointShapes");
    // Without fields no layout would be written in place of the one set aside.
    if (form.AMark.UBound() == 0 && form.AText.UBound() == 0) return;
    trapped(form, "Error in CheckPointShapes ", [&] {
        if (const auto old = toolkit::findFile(form.DataFolder, setAsideName)) {
            toolkit::deleteFile(*old);
        }
        toolkit::renameFile(toolkit::resolveFile(form.DataFolder, layoutFileName),
                            form.DataFolder / setAsideName);
        form.LayoutUnwritten = false;
        MSaveShapes_Click(form);
        if (form.LayoutUnwritten) RestoreShapes(form);
    });
}

void RestoreShapes(Zevlin& form) {
    Traceit(form, "RestoreShapes");
    trapped(form, "Error in RestoreShapes: #", [&] {
        const auto setAside = toolkit::findFile(form.DataFolder, setAsideName);
        if (!setAside) return;
        if (const auto present = toolkit::findFile(form.DataFolder, layoutFileName)) {
            toolkit::deleteFile(*present);
        }
        toolkit::renameFile(*setAside, form.DataFolder / layoutFileName);
    });
}

} // namespace zev
