#include "layout/renew_layout.h"

#include <filesystem>
#include <optional>
#include <string>

#include "form/options.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/check_update.h"
#include "layout/find_layout.h"
#include "layout/former_layout.h"
#include "layout/layout_file.h"
#include "layout/layout_text.h"
#include "layout/version.h"
#include "toolkit/base/copy_file.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/shell_folders.h"

namespace zev {
namespace {

std::optional<std::filesystem::path> findInstalled(const Zevlin& form) {
    return toolkit::findFile(toolkit::programFolder(),
                             std::string(layoutFileName) + "." +
                                 toolkit::numberText(installedLayout(form.TwipsPerPixel)));
}

/// Copies, rather than lets the layout be missing for a moment: then it would be a first run's.
void takeInstalled(Zevlin& form, const std::filesystem::path& layout,
                   const std::optional<std::filesystem::path>& installed) {
    if (!installed) return;
    toolkit::copyFile(layout, toolkit::resolveFile(form.DataFolder, replacedLayoutName));
    toolkit::copyFile(*installed, layout);
    Traceit(form, "Definitions.Ini of the former card is Definitions.old now");
}

/// Whether the options were last written by the version with the former card.
bool isFirstStart(const Zevlin& form) {
    const auto options = toolkit::findFile(form.DataFolder, optionsFileName);
    return options && comparedVersion(toolkit::readFile(*options)) == formerCardVersion;
}

bool renew(Zevlin& form) {
    const auto layout = toolkit::findFile(form.DataFolder, layoutFileName);
    if (!layout) return false;
    const std::string content = toolkit::readFile(*layout);
    const auto installed = findInstalled(form);
    // Most players have that one, and to digest its fields would take thirty times as long.
    if (installed && toolkit::readFile(*installed) == content) return false;
    if (isUntouchedFormerLayout(content)) {
        takeInstalled(form, *layout, installed);
        return false;
    }
    if (comparedVersion(content) != formerCardVersion || !isFirstStart(form)) return false;
    if (isUpdateWanted()) takeInstalled(form, *layout, installed);
    return true;
}

} // namespace

bool renewLayout(Zevlin& form) {
    bool hasAsked = false;
    trapped(form, "Error in renewLayout ", [&] { hasAsked = renew(form); });
    return hasAsked;
}

} // namespace zev
