#include "app/data_folder.h"

#include <optional>
#include <string>
#include <system_error>

#include "app/data_folder_rules.h"
#include "app/options.h"
#include "app/settings.h"
#include "app/trace.h"
#include "app/zevlin.h"
#include "toolkit/ansi.h"
#include "toolkit/dialog.h"
#include "toolkit/files.h"
#include "toolkit/number_text.h"
#include "toolkit/program.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

/// A program folder that holds it is a developer's and keeps its files.
constexpr const char* developmentFile = "zevlin.frm";

struct Move {
    fs::path source;
    fs::path target;
    std::string lowerCaseName;
};

/// A folder of that name is no target: copying over it fails, and the player is told.
bool hasGoodTarget(const Move& move) {
    return fs::is_regular_file(move.target) &&
           isGoodTarget(toolkit::fileTime(move.source), toolkit::fileTime(move.target));
}

bool isVerified(const Move& move) {
    return fs::is_regular_file(move.target) &&
           toolkit::fileTime(move.source) == toolkit::fileTime(move.target) &&
           toolkit::fileLength(move.source) == toolkit::fileLength(move.target);
}

void moveFile(const Move& move, const fs::path& programFolder) {
    if (!hasGoodTarget(move)) toolkit::copyFile(move.source, move.target);
    if (isReadme(move.lowerCaseName) || !isVerified(move)) return;
    if (toolkit::findFile(programFolder, developmentFile)) return;
    ignoringFailures([&] { toolkit::deleteFile(move.source); });
}

/// Whether both names lead to one folder: each file would then be its own verified copy.
bool isSameFolder(const fs::path& left, const fs::path& right) {
    std::error_code ignored;
    return fs::equivalent(left, right, ignored);
}

void requireFolder(const fs::path& folder) {
    if (!fs::is_directory(folder)) throw toolkit::RunTimeError(toolkit::Failure::PathNotFound);
}

void moveFiles(const fs::path& source, const fs::path& sink) {
    requireFolder(source);
    requireFolder(sink);
    if (isSameFolder(source, sink)) return;
    for (const std::string& name : toolkit::listFiles(source, "")) {
        const std::string lowerCaseName = toolkit::lowerCase(name);
        if (!isPlayersFile(lowerCaseName)) continue;
        moveFile({.source = source / toolkit::pathFromText(name),
                  .target = toolkit::resolveFile(sink, name),
                  .lowerCaseName = lowerCaseName},
                 source);
    }
}

void hideMenuItem(Zevlin& form) {
    form.mDocsFolder.Visible = false;
    form.mDocsFolder.Checked = true;
}

/// There is nothing left to click for.
void showNewFolder(Zevlin& form) {
    form.LPath.Caption = toolkit::captionFor(toolkit::displayText(currentFolder(form)));
    form.LPath.ForeColor = toolkit::black;
    form.LPath.ToolTip.clear();
}

void tellMoved(Zevlin& form) {
    if (!form.mDocsFolder.Checked) return;
    toolkit::tell("Your ZEV files have been moved to " + toolkit::displayText(form.DataFolder) +
                      " .  This option is no longer needed and will be hidden from now on.",
                  toolkit::Icon::Information);
    hideMenuItem(form);
}

void tellFailed(Zevlin& form, const fs::path& source, const toolkit::RunTimeError& failure) {
    const auto number = toolkit::numberText(failure.number());
    Traceit(form, "Error " + number + " " + failure.description() + " in mDocsFolder");
    const auto folder = toolkit::displayText(form.DataFolder);
    toolkit::tell("Creating data folder ('" + folder +
                      "') failed.  Please report this error information to " +
                      std::string(supportAddress) + ":\nError # " + number + " -- " +
                      failure.description() + "\nFrom: " + toolkit::displayText(source) +
                      "   To: " + folder,
                  toolkit::Icon::Exclamation);
}

} // namespace

fs::path GetSpecialFolder(Zevlin& form, int identifier) {
    fs::path folder;
    trapped(form, "Error in GetSpecialFolder: #",
            [&] { folder = toolkit::specialFolder(identifier); });
    return folder;
}

void mDocsFolder_Click(Zevlin& form) {
    form.DataFolder = form.DocumentsFolder / dataFolderName;
    std::error_code ignored;
    fs::create_directories(form.DataFolder, ignored);
    const auto source = toolkit::programFolder();
    Traceit(form, "mDocsFolder_Click " + toolkit::displayText(source) + " -> " +
                      toolkit::displayText(form.DataFolder));
    try {
        moveFiles(source, form.DataFolder);
        showNewFolder(form);
        tellMoved(form);
        Traceit(form, "mDocFolder_Click success");
        IniWrite(form);
    } catch (const std::exception&) {
        tellFailed(form, source, toolkit::currentFailure());
    }
}

fs::path currentFolder(const Zevlin& form) {
    std::error_code ignored;
    if (fs::is_directory(form.DataFolder, ignored)) return form.DataFolder;
    return fs::current_path(ignored);
}

} // namespace zev
