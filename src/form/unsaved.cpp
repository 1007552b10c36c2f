#include "form/unsaved.h"

#include <system_error>

#include "form/zevlin.h"

namespace zev {
namespace {

/// Milliseconds from a change to its writing: half a second is left for the writing itself.
constexpr int journalDelay = 1500;

} // namespace

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
