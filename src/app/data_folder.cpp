#include "app/data_folder.h"

#include <optional>
#include <string>
#include <system_error>

#include "app/data_folder_rules.h"
#include "card/card_file.h"
#include "form/options.h"
#include "form/services.h"
#include "form/settings.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/copy_file.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/shell_folders.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

constexpr const char* dataFolderName = "ZEV";

/// A program folder with this file is shared, by players or with a developer, and keeps its files.
constexpr const char* sharedFile = "zevlin.frm";

struct Move {
    fs::path source;
    fs::path target;
    std::string name;
    std::string lowerCaseName;
    bool isShared = false;
};

/// Whether the file that is there stays. A folder of that name doesn't: copying over it fails, and
/// the player is told. Files of a shared program folder replace nothing.
bool hasGoodTarget(const Move& move) {
    if (!fs::is_regular_file(move.target)) return false;
    return move.isShared ||
           isGoodTarget(toolkit::fileTime(move.source), toolkit::fileTime(move.target));
}

/// Keeps the player's card under the next free number before an installed one replaces it.
void keepReplacedCard(const Move& move) {
    if (!move.lowerCaseName.ends_with(cardExtension) || !fs::is_regular_file(move.target)) return;
    const std::string content = toolkit::readFile(move.target);
    if (content == toolkit::readFile(move.source)) return;
    const auto stem = move.name.substr(0, move.name.size() - cardExtension.size());
    for (int number = 2;; ++number) {
        const fs::path kept = toolkit::resolveFile(move.target.parent_path(),
                                                   stem + " (" + toolkit::numberText(number) + ")" +
                                                       std::string(cardExtension));
        if (!fs::exists(kept)) return toolkit::copyNewFile(move.target, kept);
        // An earlier first run has kept it already.
        if (fs::is_regular_file(kept) && toolkit::readFile(kept) == content) return;
    }
}

bool isVerified(const Move& move) {
    return fs::is_regular_file(move.target) &&
           toolkit::fileTime(move.source) == toolkit::fileTime(move.target) &&
           toolkit::fileLength(move.source) == toolkit::fileLength(move.target);
}

/// Copies, unless a file has turned up meanwhile: that is the player's and stays.
void copyWhereNoneIs(const Move& move) {
    try {
        toolkit::copyNewFile(move.source, move.target);
    } catch (const toolkit::RunTimeError& failure) {
        if (failure.failure() != toolkit::Failure::FileAlreadyExists) throw;
    }
}

/// Replaces only a file that was seen to be older.
void copyToTarget(const Move& move) {
    if (!fs::is_regular_file(move.target)) return copyWhereNoneIs(move);
    keepReplacedCard(move);
    toolkit::copyFile(move.source, move.target);
}

void moveFile(const Move& move) {
    if (!hasGoodTarget(move)) copyToTarget(move);
    if (move.isShared || isReadme(move.lowerCaseName) || !isVerified(move)) return;
    ignoringFailures([&] { toolkit::deleteFile(move.source); });
}

/// Whether both names lead to one folder. Each file would then count as its own copy, and be
/// deleted.
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
    const bool isShared = toolkit::findFile(source, sharedFile).has_value();
    for (const std::string& name : toolkit::listFiles(source, "")) {
        const std::string lowerCaseName = toolkit::lowerCase(name);
        if (!isPlayersFile(lowerCaseName)) continue;
        moveFile({.source = source / toolkit::pathFromText(name),
                  .target = toolkit::resolveFile(sink, name),
                  .name = name,
                  .lowerCaseName = lowerCaseName,
                  .isShared = isShared});
    }
}

void hideMenuItem(Zevlin& form) {
    form.mDocsFolder.Visible = false;
    form.mDocsFolder.Checked = true;
}

/// Shows the folder as plain text: a click has nothing left to do.
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
    procedure(form, "GetSpecialFolder", [&] { folder = toolkit::specialFolder(identifier); });
    return folder;
}

fs::path dataFolderIn(const fs::path& documents) {
    const auto found = toolkit::findFile(documents, dataFolderName);
    std::error_code ignored;
    return found && fs::is_directory(*found, ignored) ? *found : documents / dataFolderName;
}

void mDocsFolder_Click(Zevlin& form) {
    form.DataFolder = dataFolderIn(form.DocumentsFolder);
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
        form.OptionsCarriedOver = hasUnreadOptions(form);
        if (!form.OptionsCarriedOver) IniWrite(form);
    } catch (const std::exception&) {
        tellFailed(form, source, toolkit::currentFailure());
    }
}

} // namespace zev
