#include "layout/save_layout.h"

#include <cstdlib>
#include <functional>

#include "form/file_failures.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/layout_text.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

void saveLayout(Zevlin& form) {
    form.LayoutInMemory = layoutText(form);
    toolkit::writeFile(toolkit::resolveFile(form.DataFolder, layoutFileName), form.LayoutInMemory);
    ResetMod(form);
    form.DesignDirty = false;
    form.OrigIndex = 0;
}

constexpr std::string_view trapHead = "Error in MSaveShapes ";

/// Leaves design mode while `write` runs: the layout needs the fields as they are on a card.
void saveShapes(Zevlin& form, const std::function<void()>& write) {
    Traceit(form, "MSaveShapes_Click");
    // A layout is never written before the controls exist.
    if (form.AMark.UBound() == 0 && form.AText.UBound() == 0) return;
    const bool designing = form.MShowShapes.Checked;
    if (designing) form.Slots.toggleDesignMode();
    write();
    if (designing) form.Slots.toggleDesignMode();
}

} // namespace

void dropSetAside(Zevlin& form) {
    if (!form.LayoutFileAside || form.LayoutSetAside) return;
    form.LayoutFileAside = false;
    ignoringFailures([&] {
        if (const auto old = toolkit::findFile(form.DataFolder, setAsideName))
            toolkit::deleteFile(*old);
    });
}

void MSaveShapes_Click(Zevlin& form) {
    saveShapes(form, [&form] {
        if (!trapped(form, trapHead, [&] { saveLayout(form); })) toolkit::endProgram(EXIT_FAILURE);
        dropSetAside(form);
    });
}

bool saveShapesUnasked(Zevlin& form) {
    bool saved = true;
    saveShapes(form, [&form, &saved] {
        saved = trappedAndNoted(form, trapHead, layoutFailure, [&] { saveLayout(form); });
    });
    return saved;
}

} // namespace zev
