#include "card/chooser.h"

#include "card/card_file.h"
#include "card/card_names.h"
#include "card/chooser_events.h"
#include "card/chooser_layout.h"
#include "form/modified.h"
#include "form/panel_look.h"
#include "form/panels.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/file_names.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

constexpr const char* openFolderTip = "Click to open the folder in Windows Explorer";
constexpr const char* changeFolderTip = "  Right-click to change";

void showWhetherThereAreCards(Zevlin& form) {
    form.FileList.Visible = !form.FileList.List.empty();
    form.LSaveAs.Caption = form.FileList.Visible ? "Select from list or enter a name for a new card"
                                                 : "Enter a name for a new card";
}

void showFolder(Zevlin& form) {
    form.LPath.Caption = toolkit::captionFor("Folder:  " + toolkit::displayText(form.DataFolder));
    form.LPath.ForeColor = linkBlue;
    form.LPath.ToolTip = openFolderTip;
    if (!form.mDocsFolder.Checked) form.LPath.ToolTip += changeFolderTip;
}

/// The panel in place of the card and the menus, for as long as this lives.
class ShownChooser {
  public:
    explicit ShownChooser(Zevlin& form) : form_(form), background_(form.Background) {
        if (form.THelp.Visible) hideHelp(form);
        GradientFill(form, IncludePanel::Yes);
        form.P1.Visible = false;
        form.MenusEnabled = false;
        show(true);
    }
    ShownChooser(const ShownChooser&) = delete;
    ShownChooser& operator=(const ShownChooser&) = delete;
    ~ShownChooser() {
        show(false);
        form_.Background = background_;
        // The colour panel covers the card by itself.
        form_.P1.Visible = form_.MenusEnabled = !form_.ColorPic.Visible;
        form_.ActiveControl = &form_.P1;
    }

  private:
    void show(bool visible) {
        form_.P3.Visible = form_.TSaveAs.Visible = visible;
        form_.LSaveAs.Visible = form_.LPath.Visible = visible;
        form_.BOK.Visible = form_.BCancel.Visible = visible;
    }

    Zevlin& form_;
    toolkit::FormBackground background_;
};

void letPlayerChoose(Zevlin& form) {
    PopulateFileList(form);
    showWhetherThereAreCards(form);
    showFolder(form);
    layOutChooser(form);
    const ShownChooser shown(form);
    form.ChooserCancelled = form.ChooserTaken = false;
    enableOk(form);
    toolkit::doEvents();
    form.SetFocus(form.TSaveAs);
    toolkit::waitForPlayer([&form] { return form.ChooserCancelled || form.ChooserTaken; });
}

std::string chosenName(Zevlin& form) {
    if (form.ChooserCancelled) {
        form.TSaveAs.Text.clear();
        SetCaption(form);
        return {};
    }
    std::string name(toolkit::trim(form.TSaveAs.Text));
    return checkCardName(name) ? name : std::string();
}

} // namespace

void showEmptyFolder(Zevlin& form) {
    showWhetherThereAreCards(form);
    layOutChooser(form);
    // The list, which had it, is gone.
    form.SetFocus(form.TSaveAs);
}

bool checkCardName(const std::string& name) {
    if (!hasForbiddenCharacter(name) && !isTemporaryCard(name) &&
        toolkit::isPossibleFileName(name + std::string(cardExtension)))
        return true;
    toolkit::tell("'" + name +
                      "' is an invalid file name.  Names cannot contain any of these characters:  "
                      "/  :  *  \\  ?  \"  <  >",
                  toolkit::Icon::None);
    return false;
}

std::vector<std::string> listCards(const Zevlin& form) {
    auto names = toolkit::listFiles(form.DataFolder, cardExtension);
    for (std::string& name : names) name.resize(name.size() - cardExtension.size());
    std::erase_if(names, isTemporaryCard);
    return names;
}

void PopulateFileList(Zevlin& form) {
    Traceit(form, "PopulateFileList");
    form.FileList.List = listCards(form);
    form.FileList.ListIndex = -1;
}

std::string GetFileNames(Zevlin& form) {
    std::string name;
    procedure(form, "GetFileNames", [&] {
        letPlayerChoose(form);
        name = chosenName(form);
    });
    return name;
}

} // namespace zev
