#include "layout/check_update.h"

#include <cstdlib>
#include <optional>
#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/layout_file.h"
#include "layout/layout_text.h"
#include "layout/version.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/twips.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

constexpr std::string_view updateQuestion =
    "The new version of ZEV needs to update the 'Definitions.Ini' file.  This will not affect your "
    "existing cards.  Please click 'OK' to continue";
constexpr std::string_view updateRefused =
    "No changes made, but ZEV may not work properly until you complete this update.";

} // namespace

bool isUpdateWanted() {
    const auto answer = toolkit::show({.text = std::string(updateQuestion),
                                       .buttons = toolkit::Buttons::OkCancel,
                                       .icon = toolkit::Icon::Information,
                                       .title = "ZEV Update",
                                       .preset = {}});
    if (answer == toolkit::Answer::Ok) return true;
    toolkit::tell(updateRefused, toolkit::Icon::Information);
    return false;
}

namespace {

void checkUpdate(Zevlin& form) {
    const auto layout = toolkit::findFile(form.DataFolder, layoutFileName);
    if (!layout) return;
    form.TwipsPerPixel = static_cast<std::int16_t>(toolkit::twipsPerPixel());
    const auto present = comparedVersion(toolkit::readFile(*layout));
    if (!present) return;
    // Only a numbered layout that was put into the data folder counts, never the program's own.
    const auto numbered = toolkit::findFile(
        form.DataFolder, std::string(layoutFileName) + "." +
                             toolkit::numberText(installedLayout(form.TwipsPerPixel)));
    if (!numbered) return;
    const auto offered = comparedVersion(toolkit::readFile(*numbered));
    if (offered && isBelow(*present, *offered) && isUpdateWanted()) toolkit::deleteFile(*layout);
}

} // namespace

void CheckIniUpdate(Zevlin& form) {
    Traceit(form, "CheckIniUpdate");
    if (!trapped(form, "Error in CheckIniUpdate ", [&] { checkUpdate(form); })) {
        toolkit::endProgram(EXIT_FAILURE);
    }
}

} // namespace zev
