#include "app/folder_line.h"

#include <array>

#include "app/data_folder.h"
#include "form/options.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/popup_menu.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

void openFolderMenu(Zevlin& form) {
    mpopFolderMenu_Click(form);
    const std::array rows{toolkit::PopupRow{.item = &form.mpopMoveCards,
                                            .Click = [&form] { mpopMoveCards_Click(form); }},
                          toolkit::PopupRow{.item = &form.mpopLeaveCards,
                                            .Click = [&form] { mpopLeaveCards_Click(form); }}};
    toolkit::popupMenu(rows, "Folder of the cards");
}

} // namespace

void LPath_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse) {
    procedure(form, "LPath_MouseDown", toolkit::numberText(mouse.Button), [&] {
        if (mouse.Button == toolkit::button::left) {
            toolkit::showInFileManager(toolkit::resolveFile(form.DataFolder, optionsFileName));
        } else if (mouse.Button == toolkit::button::right && !form.mDocsFolder.Checked) {
            openFolderMenu(form);
        }
    });
}

void mpopFolderMenu_Click(Zevlin& form) {
    procedure(form, "mpopFolderMenu_Click", [&] {
        form.mpopMoveCards.Caption = toolkit::captionFor(
            "Store cards in " + toolkit::displayText(dataFolderIn(form.DocumentsFolder)));
    });
}

void mpopMoveCards_Click(Zevlin& form) {
    procedure(form, "mpopMoveCards_Click", [&] { mDocsFolder_Click(form); });
}

void mpopLeaveCards_Click(Zevlin& /*form*/) {}

} // namespace zev
