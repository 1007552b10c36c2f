#include "layout/check_point.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "form/file_failures.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "layout/layout_text.h"
#include "layout/save_layout.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"

namespace zev {
namespace {

/// Where the folder is out of sight, a file that can't be found may still exist.
bool isFolderThere(const Zevlin& form) {
    std::error_code ignored;
    return std::filesystem::is_directory(form.DataFolder, ignored);
}

/// Whether the file set aside is that of another copy of the program, whose job puts it back.
bool isOfAnotherCopy(const Zevlin& form, const std::optional<std::filesystem::path>& setAside) {
    return setAside && !form.LayoutFileAside && isAnotherCopyAtWork(form);
}

void putFileBack(Zevlin& form) {
    const auto setAside = toolkit::findFile(form.DataFolder, setAsideName);
    if (isOfAnotherCopy(form, setAside)) return;
    if (setAside) {
        form.LayoutFileAside = true;
        toolkit::replaceByRename(*setAside, toolkit::resolveFile(form.DataFolder, layoutFileName));
    }
    if (setAside || isFolderThere(form)) form.LayoutFileAside = false;
}

bool restoreFile(Zevlin& form) {
    return trapped(form, "Error in RestoreShapes: #", [&] { putFileBack(form); });
}

/// Traces why there is no file to set aside.
void traceNoFile(Zevlin& form, toolkit::Failure failure) {
    traceFailure(form, "Error in CheckPointShapes ", toolkit::RunTimeError(failure));
}

} // namespace

bool finishRestore(Zevlin& form) {
    if (form.LayoutFileAside) restoreFile(form);
    return !form.LayoutFileAside;
}

bool isLayoutSetAside(const Zevlin& form) {
    return toolkit::findFile(form.DataFolder, setAsideName).has_value();
}

void CheckPointShapes(Zevlin& form) {
    Traceit(form, "CheckPointShapes");
    // Without fields nothing would be written in place of the layout set aside.
    if (form.AMark.UBound() == 0 && form.AText.UBound() == 0) return;
    // The rebuild takes the layout in memory, whatever becomes of the files.
    if (!form.LayoutSetAside) form.LayoutSetAside = form.LayoutInMemory;
    form.LayoutInMemory = layoutText(form);
    // The file set aside may still be the player's own: it must not be deleted below.
    if (!finishRestore(form)) return;
    const auto present = toolkit::findFile(form.DataFolder, layoutFileName);
    // The rebuild copies the installed layout.
    if (!present) return traceNoFile(form, toolkit::Failure::FileNotFound);
    if (std::filesystem::is_directory(*present))
        return traceNoFile(form, toolkit::Failure::PathFileAccess);
    const auto old = toolkit::findFile(form.DataFolder, setAsideName);
    if (isOfAnotherCopy(form, old)) return;
    // By its lock a start of another copy knows that the layout isn't one that a dead copy left.
    ignoringFailures([&] { openJournal(form); });
    const bool setAside = trappedAndNoted(form, "Error in CheckPointShapes ", layoutFailure, [&] {
        if (old) keepSetAside(form, *old);
        form.LayoutFileAside = true;
        // It must be on the disk before another file gets the layout's name.
        toolkit::replaceByRename(*present, form.DataFolder / setAsideName);
    });
    if (!setAside || !saveShapesUnasked(form)) finishRestore(form);
}

void RestoreShapes(Zevlin& form) {
    Traceit(form, "RestoreShapes");
    if (form.LayoutSetAside) form.LayoutInMemory = std::move(*form.LayoutSetAside);
    form.LayoutSetAside.reset();
    restoreFile(form);
}

} // namespace zev
