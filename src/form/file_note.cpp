#include "form/file_note.h"

#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

/// Long enough for somebody who reads slowly, or has it read out.
constexpr int secondsShown = 12;
constexpr int milliseconds = 1000;
constexpr float points = 13; ///< size of the note's letters: it is read from some way off

std::string textOfNote(const Zevlin& form) {
    std::string text = "Written: ";
    for (const auto& file : form.WrittenFiles) {
        if (&file != &form.WrittenFiles.front()) text += ", ";
        text += toolkit::displayText(file.filename());
    }
    return text;
}

} // namespace

void rememberWrittenFile(Zevlin& form, const std::filesystem::path& file) {
    form.WrittenFiles.push_back(file);
}

void showFileNote(Zevlin& form) {
    if (form.WrittenFiles.empty()) return;
    form.FileNote.Text = textOfNote(form);
    form.FileNote.ToolTip = toolkit::displayText(form.WrittenFiles.back());
    form.FileNote.Font = {.Name = form.TextFontName, .Size = points};
    form.FileNote.Visible = true;
    form.FileNoteAlarm.cancel();
    form.FileNoteAlarm.set(secondsShown * milliseconds, [&form] { hideFileNote(form); });
}

void hideFileNote(Zevlin& form) {
    form.FileNoteAlarm.cancel();
    form.FileNote.Visible = false;
    form.WrittenFiles.clear();
}

void FileNote_Click(Zevlin& form) {
    procedure(form, "FileNote_Click", [&] {
        if (!form.WrittenFiles.empty()) toolkit::showInFileManager(form.WrittenFiles.back());
        hideFileNote(form);
    });
}

} // namespace zev
