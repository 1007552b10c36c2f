#include "card/chooser_menu.h"

#include <array>
#include <filesystem>
#include <string>

#include "card/card_file.h"
#include "card/chooser.h"
#include "card/chooser_events.h"
#include "card/file_seen.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/files.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/popup_menu.h"

namespace zev {
namespace {

std::string selectedName(const Zevlin& form) {
    return form.FileList.List.at(static_cast<std::size_t>(form.FileList.ListIndex));
}

/// Whether the card on the screen is this file, whose name may be written in another case.
bool isCurrentCard(const Zevlin& form, const std::filesystem::path& path) {
    return !form.CardName.empty() && path == cardPath(form);
}

void removeEntry(toolkit::ListBox& list) {
    list.List.erase(list.List.begin() + list.ListIndex);
    list.ListIndex = -1;
}

void deleteSelected(Zevlin& form) {
    const auto path = cardPath(form, selectedName(form));
    const bool isCurrent = isCurrentCard(form, path);
    if (std::filesystem::exists(path)) toolkit::deleteFile(path);
    removeEntry(form.FileList);
    if (form.FileList.List.empty()) showEmptyFolder(form);
    if (isCurrent) {
        form.CardName.clear();
        form.History.forgetSaved();
        SetCaption(form);
        // The unsaved changes now belong to an unnamed card: the journal has to say so.
        noteChange(form);
    }
    form.TSaveAs.Text.clear();
    TSaveAs_Change(form);
}

void tellNotRenamed(const toolkit::RunTimeError& failure) {
    if (failure.number() == static_cast<int>(toolkit::Failure::FileAlreadyExists))
        return toolkit::tell("Another file already has that name", toolkit::Icon::Exclamation);
    const std::string number = toolkit::numberText(failure.number());
    toolkit::tell("Error " + number + ", " + failure.description() + " in mpopRename",
                  toolkit::Icon::Exclamation);
    toolkit::tell("Program error " + number + ".  File has not been changed",
                  toolkit::Icon::Exclamation);
}

/// Gives the card on the screen the name, while the title still says what the chooser was opened
/// for.
void nameCurrentCard(Zevlin& form, const std::string& name) {
    const std::string shown = "( " + form.CardName + " )";
    if (const auto at = form.Caption.find(shown); at != std::string::npos)
        form.Caption.replace(at, shown.size(), "( " + name + " )");
    form.CardName = name;
    if (form.CardFileSeen) form.CardFileSeen->cardName = name;
    // The journal has to tell the new name.
    noteChange(form);
}

/// A name that differs in case alone is the same file, not another card that is in the way. A card
/// on the screen gets the new name, too: else the next save would make a second card of the old
/// name.
void renameCard(Zevlin& form, const std::string& name, const std::string& newName) {
    const auto path = cardPath(form, name);
    const auto target = cardPath(form, newName);
    const bool changesCase = target == path && newName != name;
    const auto newPath =
        form.DataFolder / toolkit::pathFromText(newName + std::string(cardExtension));
    const bool isCurrent = isCurrentCard(form, path);
    toolkit::renameFile(path, changesCase ? newPath : target);
    if (isCurrent) nameCurrentCard(form, newName);
    PopulateFileList(form);
    if (form.TSaveAs.Text != name) return;
    form.TSaveAs.Text = newName;
    TSaveAs_Change(form);
}

void renameSelected(Zevlin& form) {
    const std::string name = selectedName(form);
    const std::string answer = toolkit::ask(
        {.prompt = "Enter new name for this card", .title = "Rename card", .preset = name});
    if (answer.empty()) return;
    const std::string newName(toolkit::trim(answer));
    if (newName != name && checkCardName(newName)) renameCard(form, name, newName);
}

} // namespace

void openFileMenu(Zevlin& form, MenuPlace place) {
    const std::string name = toolkit::captionFor(selectedName(form));
    form.mpopOpen.Caption = "&Open " + name;
    form.mpopDelete.Caption = "&Delete " + name;
    form.mpopRename.Caption = "&Rename " + name;
    const std::array rows{
        toolkit::PopupRow{.item = &form.mpopOpen, .Click = [&form] { mpopOpen_Click(form); }},
        toolkit::PopupRow{.item = &form.mpopDelete, .Click = [&form] { mpopDelete_Click(form); }},
        toolkit::PopupRow{.item = &form.mpopRename, .Click = [&form] { mpopRename_Click(form); }}};
    if (place == MenuPlace::Row)
        toolkit::popupMenu(rows, "Card", form.FileList);
    else
        toolkit::popupMenu(rows, "Card");
}

void mpopOpen_Click(Zevlin& form) {
    Traceit(form, "mpopOpen_Click");
    FileList_DblClick(form);
}

void mpopDelete_Click(Zevlin& form) {
    procedure(form, "mpopDelete_Click", [&] { deleteSelected(form); });
}

void mpopRename_Click(Zevlin& form) {
    Traceit(form, "mpopRename_Click");
    try {
        renameSelected(form);
    } catch (const std::exception&) {
        const toolkit::RunTimeError failure = toolkit::currentFailure();
        traceFailure(form, "Error in mpopRename_Click: #", failure);
        tellNotRenamed(failure);
    }
}

void FileList_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse) {
    procedure(form, "FileList_MouseDown", toolkit::numberText(mouse.Button), [&] {
        if (mouse.Button != toolkit::button::right || form.FileList.PointedIndex < 0) return;
        form.FileList.ListIndex = form.FileList.PointedIndex;
        takeSelectedName(form);
        openFileMenu(form, MenuPlace::Pointer);
    });
}

} // namespace zev
