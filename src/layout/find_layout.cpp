#include "layout/find_layout.h"

#include <cstdlib>
#include <string>

#include "form/settings.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/initialize_run.h"
#include "layout/layout_file.h"
#include "layout/layout_text.h"
#include "toolkit/base/copy_file.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/program.h"
#include "toolkit/window/shell_folders.h"

namespace zev {
namespace {

constexpr std::string_view screenFontsQuestion =
    "The Windows screen fonts have changed since the last time you used ZEV, so checkmarks, "
    "circles, and text will not line up properly on the card.\r\n\r\n"
    "ZEV can update itself to use the current fonts, but if you are using a custom layout, it will "
    "be lost.\r\n\r\n"
    "(Most people use the standard layout, so unless you used ZEV's 'DESIGN MENU' to change the "
    "layout, \r\n"
    "this doesn't apply to you.  If it does apply, click 'No' and then use the 'DESIGN MENU' again "
    "\r\n"
    "to update the layout yourself.)\r\n\r\n"
    "Do you want ZEV to update itself to use your system's current fonts (click 'Yes' and then "
    "restart ZEV)?";

[[noreturn]] void endWithoutLayout(const std::string& name) {
    toolkit::tell("An original installation file named '" + name +
                      "' is missing.\nIt should be in this folder: " +
                      toolkit::displayText(toolkit::programFolder()) +
                      "\n\nPlease reinstall ZEV and try again.  If you installed ZEV by "
                      "downloading a ZIP file, you can extract the missing file from that ZIP.  "
                      "Or, you can reinstall by browsing to:\n" +
                      std::string(webAddress) +
                      "\nand clicking the 'Install' button on that web page.\n\nIf this error "
                      "persists, please report it to: " +
                      std::string(supportAddress),
                  toolkit::Icon::Exclamation);
    toolkit::endProgram(EXIT_FAILURE);
}

bool isFolder(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

/// False if there is one by now: the player's own, which was out of sight for a moment.
bool copyWhereNoneIs(const std::filesystem::path& source, const std::filesystem::path& target) {
    try {
        toolkit::copyNewFile(source, target);
        return true;
    } catch (const toolkit::RunTimeError& failure) {
        if (failure.failure() != toolkit::Failure::FileAlreadyExists) throw;
        return false;
    }
}

std::filesystem::path copyInstalledLayout(Zevlin& form, InitializeRun& run) {
    run.step = 1300;
    const std::string name = std::string(layoutFileName) + "." +
                             toolkit::numberText(installedLayout(form.TwipsPerPixel));
    const auto installed = toolkit::findFile(toolkit::programFolder(), name);
    if (!installed && form.Carried) throw toolkit::RunTimeError(toolkit::Failure::FileNotFound);
    if (!installed) endWithoutLayout(name);
    run.step = 1350;
    auto target = form.DataFolder / layoutFileName;
    Traceit(form, "Initialize step 1350: creating " + toolkit::displayText(target));
    if (!copyWhereNoneIs(*installed, target)) return target;
    run.firstRun = !form.Carried;
    form.LayoutCopied = true;
    return target;
}

void replaceLayout(Zevlin& form) {
    ignoringFailures([&] {
        if (const auto old = toolkit::findFile(form.DataFolder, replacedLayoutName)) {
            toolkit::deleteFile(*old);
        }
        toolkit::renameFile(toolkit::resolveFile(form.DataFolder, layoutFileName),
                            form.DataFolder / replacedLayoutName);
    });
    toolkit::endProgram(EXIT_SUCCESS);
}

} // namespace

std::filesystem::path findLayout(Zevlin& form, InitializeRun& run) {
    run.step = 1280;
    const auto folder = toolkit::displayText(form.DataFolder);
    if (const auto file = toolkit::findFile(form.DataFolder, layoutFileName)) {
        run.step = 1370;
        Traceit(form, "Initialize step 1370: Definitions.Ini was found in " + folder);
        return *file;
    }
    Traceit(form, "Initialize step 1280: Definitions.Ini not found in " + folder);
    if (form.Carried && !isFolder(form.DataFolder))
        throw toolkit::RunTimeError(toolkit::Failure::PathNotFound);
    return copyInstalledLayout(form, run);
}

void checkScreenFonts(Zevlin& form) {
    constexpr int fewestTwips = 5;
    const bool same = form.OriginalTwips == form.TwipsPerPixel &&
                      form.OriginalTwips >= fewestTwips && form.TwipsPerPixel >= fewestTwips;
    if (same || form.FontChangeAsked) return;
    form.FontChangeAsked = true;
    // This run has copied the installed layout, and there is no better one for this screen.
    if (form.LayoutCopied) return;
    const auto answer = toolkit::show({.text = std::string(screenFontsQuestion),
                                       .buttons = toolkit::Buttons::YesNo,
                                       .icon = toolkit::Icon::Exclamation,
                                       .title = "ZEV Configuration error",
                                       .preset = {}});
    if (answer == toolkit::Answer::Yes) replaceLayout(form);
}

} // namespace zev
