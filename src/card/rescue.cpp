#include "card/rescue.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "card/document.h"
#include "card/file_seen.h"
#include "card/undo_card.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "layout/build_fields.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/shell_folders.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

bool isEmpty(const fs::path& path) {
    std::error_code failed;
    return fs::file_size(path, failed) == 0 && !failed;
}

struct Journals {
    std::vector<Rescue> dead; ///< not read yet
    bool hasTraces = false;   ///< any copy, living or dead, keeps or kept a journal
    bool hasLivingCopies = false;
};

fs::file_time_type timeOf(const fs::path& file) {
    std::error_code ignored;
    return fs::last_write_time(file, ignored);
}

Journals findJournals() {
    Journals journals;
    for (const fs::path& file : journalFiles()) {
        journals.hasTraces = true;
        Rescue rescue{.card = {}, .file = file, .lock = {}};
        if (!rescue.lock.take(lockOf(file)))
            journals.hasLivingCopies = true;
        else if (isEmpty(file))
            discardJournal(file);
        else if (toolkit::isThere(file))
            journals.dead.push_back(std::move(rescue));
    }
    std::ranges::sort(journals.dead, {}, [](const Rescue& rescue) { return timeOf(rescue.file); });
    return journals;
}

/// A file that makes no sense is renamed: it can't be offered, but it isn't ours to throw away. One
/// that the disk can't read now is left for the next start.
bool read(Zevlin& form, Rescue& rescue) {
    return trapped(form, "Error in a journal: #", [&] {
        const std::string content = toolkit::readFile(rescue.file);
        try {
            rescue.card = readRescue(content);
        } catch (...) {
            std::error_code ignored;
            fs::rename(rescue.file, fs::path(rescue.file).replace_extension(".damaged"), ignored);
            throw;
        }
    });
}

toolkit::Answer ask(const RescuedCard& card) {
    const std::string name = card.name.empty() ? "(unnamed)" : card.name;
    return toolkit::show({.text = "Zevlin ended before your changes to '" + name +
                                  "' were saved. Do you want them back?",
                          .buttons = toolkit::Buttons::YesNoCancel,
                          .icon = toolkit::Icon::Question,
                          .title = "Unsaved changes",
                          .preset = toolkit::Answer::Yes});
}

/// Whether the card's own file already holds the same: then only the journal's removal failed after
/// the card was saved.
bool isSaved(const Zevlin& form, const RescuedCard& card) {
    bool saved = false;
    ignoringFailures([&] {
        const auto file = findCard(form, card.name);
        saved = !card.name.empty() && file && isChanged(*file, card.file) &&
                readCard(toolkit::readFile(*file)) == card.document;
    });
    return saved;
}

/// Whether nothing is filled in. A card that can't be read doesn't count as blank.
bool isBlank(const std::string& content) {
    bool isFilledIn = true;
    ignoringFailures([&] {
        const CardDocument card = readCard(content);
        const auto isWritten = [](const auto& text) { return !text.text.empty(); };
        isFilledIn = card.partner != CardPartner{} ||
                     std::ranges::find(card.marks, true) != card.marks.end() ||
                     std::ranges::any_of(card.texts, isWritten);
    });
    return !isFilledIn;
}

/// A temporary card without any journal is all that is left of a card. It becomes a journal, which
/// no rebuild overwrites.
void adoptTemporaryCard(Zevlin& form, Journals& journals) {
    const auto file = findCard(form, temporaryCardName);
    if (!file || journals.hasLivingCopies) return;
    ignoringFailures([&] {
        const std::string content = toolkit::readFile(*file);
        if (!content.empty() && !journals.hasTraces && !isBlank(content)) {
            openJournal(form);
            toolkit::writeFile(form.Journal.file, content);
            journals.dead.push_back({.card = {},
                                     .file = std::exchange(form.Journal.file, {}),
                                     .lock = std::exchange(form.Journal.lock, {})});
        }
        toolkit::deleteFile(*file);
    });
}

} // namespace

std::optional<Rescue> offerRescue(Zevlin& form) {
    toolkit::deleteLeftOvers(toolkit::stateFolder());
    Journals journals = findJournals();
    adoptTemporaryCard(form, journals);
    for (Rescue& rescue : journals.dead) {
        if (!read(form, rescue)) continue;
        const auto answer = isSaved(form, rescue.card) ? toolkit::Answer::No : ask(rescue.card);
        if (answer == toolkit::Answer::Yes) return std::move(rescue);
        if (answer == toolkit::Answer::No) discardJournal(rescue.file);
    }
    return std::nullopt;
}

void openRescued(Zevlin& form, Rescue rescue) {
    form.CardName = rescue.card.name;
    form.CardFileSeen = SeenFile{.cardName = form.CardName, .state = rescue.card.file};
    showDocument(form, rescue.card.document);
    SetMod(form);
    beginHistory(form, false);
    // Where the layout lacks a field for part of the card, the file stays and is offered again.
    if (!hasRoomFor(form, rescue.card.document)) return;
    form.Journal.file = std::move(rescue.file);
    form.Journal.lock = std::move(rescue.lock);
    form.Journal.written.clear();
}

} // namespace zev
