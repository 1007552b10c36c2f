#include "layout/save_layout.h"

#include <cstdlib>
#include <functional>
#include <string>
#include <system_error>
#include <utility>

#include "form/file_failures.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "layout/layout_text.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

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

std::string keptName(int number) {
    if (number == 1) return "Definitions.kept";
    return "Definitions " + toolkit::numberText(number) + ".kept";
}

bool holds(const fs::path& file, const std::string& content) {
    std::error_code ignored;
    return fs::is_regular_file(file, ignored) && toolkit::readFile(file) == content;
}

} // namespace

void keepSetAside(Zevlin& form, const fs::path& setAside) {
    const std::string content = toolkit::readFile(setAside);
    auto other = toolkit::findFile(form.DataFolder, layoutFileName);
    for (int number = 1; !other || !holds(*other, content); ++number) {
        const std::string name = keptName(number);
        other = toolkit::findFile(form.DataFolder, name);
        if (other) continue;
        toolkit::renameFile(setAside, form.DataFolder / name);
        return Traceit(form,
                       std::string(setAsideName) + " of a copy that has ended is " + name + " now");
    }
    toolkit::deleteFile(setAside);
}

void dropSetAside(Zevlin& form) {
    if (form.LayoutSetAside) return;
    const bool isOwn = std::exchange(form.LayoutFileAside, false);
    trapped(form, trapHead, [&] {
        const auto old = toolkit::findFile(form.DataFolder, setAsideName);
        if (!old) return;
        if (isOwn) return toolkit::deleteFile(*old);
        if (!isAnotherCopyAtWork(form)) keepSetAside(form, *old);
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
