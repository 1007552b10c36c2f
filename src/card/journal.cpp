#include "card/journal.h"

#include <string>
#include <utility>

#include "card/document.h"
#include "card/rescue.h"
#include "card/rescue_file.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "text/escapes.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"

namespace zev {
namespace {

std::string journalText(const Zevlin& form) {
    RescuedCard card;
    card.name = form.CardName;
    if (form.CardFileSeen && form.CardFileSeen->cardName == form.CardName)
        card.file = form.CardFileSeen->state;
    card.document = documentWithTyping(form);
    return writeRescue(card);
}

bool hasUnsavedChanges(const Zevlin& form) {
    // What the fields show in design mode isn't the card.
    if (form.MShowShapes.Checked) return false;
    return form.CardModified || documentWithTyping(form) != documentOf(form);
}

/// The file may have been deleted, alone or with its folder.
bool holds(const JournalState& journal, const std::string& text) {
    return text == journal.written && toolkit::isThere(journal.file);
}

void writeJournal(Zevlin& form) {
    std::string text = journalText(form);
    if (holds(form.Journal, text)) return;
    openJournal(form);
    toolkit::writeFile(form.Journal.file, text);
    form.Journal.written = std::move(text);
}

/// A failure is traced once. The program goes on and tries again, even without a further change:
/// there may be room on the disk by then.
bool tryToWrite(Zevlin& form) {
    try {
        writeJournal(form);
        return true;
    } catch (const std::exception&) {
        const auto failure = toolkit::currentFailure();
        if (!std::exchange(form.Journal.failureTraced, true))
            traceFailure(form, "Error in the journal: #", failure);
        noteChange(form);
        return false;
    }
}

} // namespace

void flushJournal(Zevlin& form) {
    if (isCardAway(form)) return;
    form.Journal.alarm.cancel();
    if (hasUnsavedChanges(form)) static_cast<void>(tryToWrite(form));
}

void ringJournal(Zevlin& form) {
    if (isCardAway(form)) return noteChange(form);
    flushJournal(form);
}

bool keepForNextStart(Zevlin& form) { return isCardAway(form) || tryToWrite(form); }

} // namespace zev
