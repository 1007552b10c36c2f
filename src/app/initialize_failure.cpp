#include "app/initialize_failure.h"

#include <cstdlib>
#include <filesystem>
#include <string>

#include "form/options.h"
#include "form/services.h"
#include "form/settings.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/initialize_run.h"
#include "layout/layout_text.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/program.h"
#include "toolkit/window/shell_folders.h"

namespace zev {
namespace {

constexpr int firstStepBehindOptions = 600;

constexpr std::string_view selfInstallerLines =
    "If you used the automatic self-installer, you should be able to uninstall ZEV from 'Add and "
    "Remove Programs' in the Control Panel.  (The Control Panel is listed on the Windows 'Start' "
    "button.)\n\n";

std::string reinstallLines(int step) {
    return std::string(selfInstallerLines) +
           "To re-install ZEV, go to its website: " + std::string(webAddress) +
           "\nand click the 'Install' button.\n\nIf this error persists, please report it to: " +
           std::string(supportAddress) + "\nand mention this Step#: " + toolkit::numberText(step);
}

std::string optionsAtFault(const std::string& folder, int step) {
    return "The 'ZEV.Ini' file in '" + folder +
           "' contains errors at Step#: " + toolkit::numberText(step) +
           "\n\nThe best way to try to fix this is to delete the file and start ZEV again.  If "
           "ZEV.Ini is deleted, you will have to re-enter the settings you've chosen on the "
           "OPTIONS menu, including your name and ACBL ID#.\n\nClick 'OK' to let ZEV delete the "
           "file now, or 'Cancel' to try something else yourself.";
}

std::string layoutAtFault(const std::string& folder, int step) {
    return "The 'Definitions.Ini' file in '" + folder +
           "' contains errors.\n\nThe best way to try to fix this is to delete the file and "
           "restart ZEV so that it can recreate the file.  If that doesn't work, please uninstall "
           "ZEV and re-install it (this will not affect any cards you've made).\n\nClick 'OK' to "
           "let ZEV delete the file for you, or 'Cancel' to try something else yourself.\n\nIf you "
           "click 'OK', please restart ZEV to see whether the problem has been fixed.\n\n" +
           reinstallLines(step);
}

std::string layoutMissing(int step) {
    return "The original distribution file that describes how cards should look is missing or "
           "unusable.\n\nIf you installed ZEV by downloading a ZIP file, you can extract that "
           "missing file from that ZIP.\nOtherwise, please uninstall ZEV and re-install it (this "
           "will not affect any cards you've made.)\n\n" +
           reinstallLines(step);
}

struct SuspectFile {
    std::filesystem::path folder;
    const char* name;
};

/// Shows the box, and on OK deletes the file.
void offerToDelete(const std::string& text, const SuspectFile& suspect) {
    const auto answer = toolkit::show({.text = text,
                                       .buttons = toolkit::Buttons::OkCancel,
                                       .icon = toolkit::Icon::Exclamation,
                                       .title = {},
                                       .preset = {}});
    if (answer != toolkit::Answer::Ok) return;
    ignoringFailures([&] {
        if (const auto file = toolkit::findFile(suspect.folder, suspect.name)) {
            toolkit::deleteFile(*file);
        }
    });
}

void tellLayoutFailure(const Zevlin& form, int step) {
    const auto folder = form.DataFolder.empty() ? toolkit::programFolder() : form.DataFolder;
    const bool there = toolkit::findFile(folder, layoutFileName).has_value();
    offerToDelete(there ? layoutAtFault(toolkit::displayText(folder), step) : layoutMissing(step),
                  {folder, layoutFileName});
}

} // namespace

void endFailedInitialize(Zevlin& form, const toolkit::RunTimeError& failure, int step) {
    traceFailedInitialize(form, failure, step);
    if (step > 0 && step < firstStepBehindOptions) {
        offerToDelete(optionsAtFault(toolkit::displayText(currentFolder(form)), step),
                      {form.DataFolder, optionsFileName});
    } else {
        tellLayoutFailure(form, step);
    }
    toolkit::endProgram(EXIT_FAILURE);
}

} // namespace zev
