#include "view/rebuild.h"

#include <string>

#include "card/card_file.h"
#include "card/document.h"
#include "card/file_seen.h"
#include "card/journal.h"
#include "card/lifecycle.h"
#include "card/load.h"
#include "card/save.h"
#include "form/background.h"
#include "form/file_failures.h"
#include "form/modified.h"
#include "form/options.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "toolkit/base/files.h"
#include "view/image_size.h"

namespace zev {
namespace {

/// Deletes the temporary card. Where that fails, the next rebuild replaces it.
void deleteTemporaryCard(Zevlin& form) {
    ignoringFailures([&] {
        if (const auto file = findCard(form, temporaryCardName)) toolkit::deleteFile(*file);
    });
}

/// Keeps the card in memory during a rebuild and gives it back, whatever happens: content, name and
/// changed flag.
class KeptCard {
  public:
    explicit KeptCard(Zevlin& form) : form_(form) {
        form.Carried = CarriedCard{
            .document = documentOf(form), .name = form.CardName, .modified = form.CardModified};
    }
    KeptCard(const KeptCard&) = delete;
    KeptCard& operator=(const KeptCard&) = delete;
    ~KeptCard() {
        if (!isShown_) ignoringFailures([&] { showDocument(form_, form_.Carried->document); });
        if (form_.Carried) putBack();
        form_.P1.Visible = true;
    }
    /// To be called once the fields show the card again.
    void noteShown() { isShown_ = true; }
    void putBack() {
        form_.CardName = form_.Carried->name;
        form_.CardModified = form_.Carried->modified;
        form_.Carried.reset();
    }

  private:
    Zevlin& form_;
    bool isShown_ = false;
};

void carryThrough(Zevlin& form) {
    // An edit that is still open is part of the card and of its changed flag.
    commitOpenField(form);
    flushJournal(form);
    KeptCard kept(form);
    deleteTemporaryCard(form);
    form.CardName = temporaryCardName;
    MSave_Click(form);
    ResetMod(form);
    MNew_Click(form);
    // The places kept for the undo are those of the former size.
    form.UndoIndex = 0;
    form.P1.Visible = false;
    form.Slots.initialize();
    form.CardName = temporaryCardName;
    GetCardFile(form);
    kept.noteShown();
    kept.putBack();
    SetCaption(form);
    deleteTemporaryCard(form);
    form.P1.Visible = true;
    CreateBG(form, form.BGPat, 0, 0);
}

/// A rebuild inside another one only makes the fields anew: the outer one has the card.
void rebuild(Zevlin& form) {
    if (form.Carried)
        form.Slots.initialize();
    else
        carryThrough(form);
}

} // namespace

void RebuildScreenImage(Zevlin& form) {
    const bool designing = form.MShowShapes.Checked;
    procedure(form, "RebuildScreenImage", [&] {
        form.TabActive = false;
        // A failure here comes again, and is traced, where the picture is needed.
        if (!form.Initializing) ignoringFailures([&] { StartPicture(form); });
        // Design mode ends first: what it shows must neither be saved as a card nor be lost.
        if (designing) form.Slots.toggleDesignMode();
        // The journal is written before any other file is touched.
        if (!form.Initializing) flushJournal(form);
        IniWrite(form);
        if (!form.Initializing) rebuild(form);
    });
    form.PictureStarted.reset();
    if (designing) form.Slots.toggleDesignMode();
    // A job tells them when it is over.
    if (!form.Printing && !form.Carried && !form.Initializing) tellFileFailures(form);
}

} // namespace zev
