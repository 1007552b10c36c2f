#include "view/rebuild.h"

#include <string>
#include <utility>

#include "app/initialize.h"
#include "app/options.h"
#include "app/trace.h"
#include "app/zevlin.h"
#include "card/card_file.h"
#include "card/lifecycle.h"
#include "card/load.h"
#include "card/modified.h"
#include "card/save.h"
#include "design/design_mode.h"
#include "text/edit_field.h"
#include "toolkit/files.h"
#include "view/background.h"
#include "view/image_size.h"

namespace zev {
namespace {

/// The temporary file goes; if it can't, the next rebuild replaces it.
void deleteTemporaryCard(Zevlin& form) {
    ignoringFailures([&] {
        const auto name = std::string(temporaryCardName) + std::string(cardExtension);
        if (const auto file = toolkit::findFile(form.DataFolder, name)) toolkit::deleteFile(*file);
    });
}

/// Name and changed flag for the time of a rebuild: whatever happens, they and the card come back.
class KeptCard {
  public:
    explicit KeptCard(Zevlin& form)
        : form_(form), name_(form.CardName), modified_(form.CardModified) {
        form.NameBeforeRebuild = name_;
    }
    KeptCard(const KeptCard&) = delete;
    KeptCard& operator=(const KeptCard&) = delete;
    ~KeptCard() {
        putBack();
        form_.PictureRows.finish();
        form_.P1.Visible = true;
    }
    void putBack() {
        form_.CardName = name_;
        form_.CardModified = modified_;
        form_.NameBeforeRebuild.reset();
        form_.CardInMemory.reset();
    }

  private:
    Zevlin& form_;
    std::string name_;
    bool modified_;
};

void carryThrough(Zevlin& form) {
    // An edit that is still open is part of the card and of its changed flag.
    commitOpenField(form);
    KeptCard kept(form);
    deleteTemporaryCard(form);
    form.CardName = temporaryCardName;
    MSave_Click(form);
    ResetMod(form);
    MNew_Click(form);
    // The places in it are those of the former size.
    form.UndoIndex = 0;
    form.P1.Visible = false;
    Initialize(form);
    form.CardName = temporaryCardName;
    GetCardFile(form);
    kept.putBack();
    SetCaption(form);
    deleteTemporaryCard(form);
    form.PictureRows.finish();
    form.P1.Visible = true;
    CreateBG(form, form.BGPat, 0, 0);
}

} // namespace

void RebuildScreenImage(Zevlin& form) {
    Traceit(form, "RebuildScreenImage");
    const bool designing = form.MShowShapes.Checked;
    trapped(form, "Error in RebuildScreenImage: #", [&] {
        form.TabActive = false;
        // What fails here fails again, and is told, where the picture is wanted.
        if (!form.Initializing) ignoringFailures([&] { StartPicture(form); });
        // What design mode shows is neither to be saved nor to be lost.
        if (designing) MShowShapes_Click(form);
        IniWrite(form);
        if (!form.Initializing) carryThrough(form);
    });
    form.PictureStarted.reset();
    if (designing) MShowShapes_Click(form);
}

} // namespace zev
