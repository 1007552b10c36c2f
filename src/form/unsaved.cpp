#include "form/unsaved.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "card/card_file.h"
#include "form/zevlin.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/shell_folders.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

/// Milliseconds from a change to its writing: half a second is left for the writing itself.
constexpr int journalDelay = 1500;

constexpr std::string_view namePrefix = "changes-";
constexpr std::string_view lockExtension = ".lock";

fs::path fileOf(int number) {
    return toolkit::stateFolder() /
           (std::string(namePrefix) + toolkit::numberText(number) + std::string(cardExtension));
}

/// Nobody but the player may read what is in it.
void makeStateFolder() {
    const fs::path folder = toolkit::stateFolder();
    std::error_code ignored;
    if (fs::is_directory(folder, ignored)) return;
    fs::create_directories(folder, ignored);
    fs::permissions(folder, fs::perms::owner_all, ignored);
}

/// The lock's file may have been deleted, alone or with its folder.
bool holdsLock(const JournalState& journal) {
    return journal.lock.isHeld() && toolkit::isThere(lockOf(journal.file));
}

} // namespace

fs::path lockOf(fs::path journal) { return journal.replace_extension(lockExtension); }

std::vector<fs::path> journalFiles() {
    std::vector<fs::path> files;
    const fs::path folder = toolkit::stateFolder();
    for (const std::string_view extension : {cardExtension, lockExtension}) {
        for (const std::string& name : toolkit::listFiles(folder, extension)) {
            if (!name.starts_with(namePrefix)) continue;
            const fs::path file = (folder / name).replace_extension(cardExtension);
            if (std::ranges::find(files, file) == files.end()) files.push_back(file);
        }
    }
    return files;
}

void openJournal(Zevlin& form) {
    if (holdsLock(form.Journal)) return;
    makeStateFolder();
    constexpr int mostCopies = 1000;
    for (int number = 1; number <= mostCopies; ++number) {
        const fs::path file = fileOf(number);
        if (toolkit::isThere(file) || !form.Journal.lock.take(lockOf(file))) continue;
        form.Journal.file = file;
        // Another copy of the program may have made the file, and ended, before this one had the
        // lock.
        if (!toolkit::isThere(file)) return;
    }
    throw toolkit::RunTimeError(toolkit::Failure::PermissionDenied);
}

bool isCardAway(const Zevlin& form) { return form.Printing || form.Carried || form.Journal.isHeld; }

bool isAnotherCopyAtWork(const Zevlin& form) {
    return std::ranges::any_of(journalFiles(), [&form](const fs::path& file) {
        if (!toolkit::isThere(lockOf(file))) return false;
        if (form.Journal.lock.isHeld() && file == form.Journal.file) return false;
        return !toolkit::FileLock().take(lockOf(file));
    });
}

void noteChange(Zevlin& form) {
    form.Journal.alarm.set(journalDelay, [&form] { form.Slots.ringJournal(); });
}

void dropJournal(Zevlin& form) {
    form.Journal.alarm.cancel();
    form.Journal.written.clear();
    if (!form.Journal.file.empty()) discardJournal(form.Journal.file);
}

void discardJournal(const std::filesystem::path& file) {
    std::error_code failed;
    std::filesystem::remove(file, failed);
    if (failed) std::filesystem::resize_file(file, 0, failed);
}

} // namespace zev
