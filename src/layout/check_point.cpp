#include "layout/check_point.h"

#include <filesystem>
#include <string>
#include <utility>

#include "app/file_failures.h"
#include "app/trace.h"
#include "app/zevlin.h"
#include "layout/save_layout.h"
#include "toolkit/files.h"

namespace zev {
namespace {

constexpr const char* setAsideName = "$$TempDef.Ini";

void restoreFile(Zevlin& form) {
    trapped(form, "Error in RestoreShapes: #", [&] {
        const auto setAside = toolkit::findFile(form.DataFolder, setAsideName);
        if (!setAside) return;
        toolkit::replaceByRename(*setAside, toolkit::resolveFile(form.DataFolder, layoutFileName));
    });
}

/// There is nothing to set aside.
void traceNoFile(Zevlin& form, toolkit::Failure failure) {
    traceFailure(form, "Error in CheckPointShapes ", toolkit::RunTimeError(failure));
}

} // namespace

void CheckPointShapes(Zevlin& form) {
    Traceit(form, "CheckPointShapes");
    // Without fields no layout would be written in place of the one set aside.
    if (form.AMark.UBound() == 0 && form.AText.UBound() == 0) return;
    // The rebuild goes by what is in memory, whatever becomes of the files.
    if (!form.LayoutSetAside) form.LayoutSetAside = form.LayoutInMemory;
    form.LayoutInMemory = layoutText(form);
    const auto present = toolkit::findFile(form.DataFolder, layoutFileName);
    // The rebuild brings the installed one.
    if (!present) return traceNoFile(form, toolkit::Failure::FileNotFound);
    if (std::filesystem::is_directory(*present))
        return traceNoFile(form, toolkit::Failure::PathFileAccess);
    const bool setAside = trappedAndNoted(form, "Error in CheckPointShapes ", layoutFailure, [&] {
        if (const auto old = toolkit::findFile(form.DataFolder, setAsideName)) {
            toolkit::deleteFile(*old);
        }
        toolkit::renameFile(*present, form.DataFolder / setAsideName);
    });
    if (setAside && !saveShapesUnasked(form)) restoreFile(form);
}

void RestoreShapes(Zevlin& form) {
    Traceit(form, "RestoreShapes");
    if (form.LayoutSetAside) form.LayoutInMemory = std::move(*form.LayoutSetAside);
    form.LayoutSetAside.reset();
    restoreFile(form);
}

} // namespace zev
