#include "card/names_line.h"

#include <string>

#include "form/file_failures.h"
#include "form/modified.h"
#include "form/options.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "text/escapes.h"
#include "text/fit_text.h"
#include "text/set_sym.h"
#include "toolkit/base/ansi.h"
#include "toolkit/window/dialog.h"

namespace zev {
namespace {

constexpr std::string_view examples = " Examples:\n  Joe 12345\n  Joe Smith 12345\n  Joe\n\n"
                                      "To delete this information, enter a single 'space'";

struct Question {
    std::string_view title;
    std::string_view prompt;
    PlayerId present;
};

std::string askForId(const Question& question) {
    const std::string preset = question.present.name + " " + question.present.number;
    return toolkit::ask({.prompt = std::string(question.prompt) + std::string(examples),
                         .title = std::string(question.title),
                         .preset = std::string(toolkit::trim(preset))});
}

void changeMyId(Zevlin& form) {
    commitOpenField(form);
    const std::string answer =
        askForId({.title = "My ID",
                  .prompt = "Enter your name [and optionally, your ACBL ID number].",
                  .present = {form.MyName, form.MyNumber}});
    if (answer.empty()) return;
    if (answer == " ") {
        form.MyName.clear();
        form.MyNumber.clear();
        return IniWrite(form);
    }
    const PlayerId player = splitPlayerId(answer);
    if (player.name.empty()) return;
    form.MyName = player.name;
    form.MyNumber = player.number;
    IniWrite(form);
    ShowNames(form, NamesUpdate::Replace);
}

void changePartnerId(Zevlin& form) {
    commitOpenField(form);
    const PlayerId present{form.PartnerName, form.PartnerNumber};
    const std::string answer =
        askForId({.title = "Partner ID",
                  .prompt = "Enter your partner's name [and optionally, ACBL ID number].",
                  .present = present});
    if (answer.empty()) return;
    if (answer == " ") {
        form.PartnerName.clear();
        form.PartnerNumber.clear();
        return SetMod(form);
    }
    const PlayerId partner = splitPlayerId(answer);
    if (partner.name.empty() || partner == present) return;
    form.PartnerName = partner.name;
    form.PartnerNumber = partner.number;
    ShowNames(form, NamesUpdate::Replace);
    // The names are part of the card even where the layout has no line for them.
    if (!form.StepPending) SetMod(form);
}

std::string lineToShow(const Zevlin& form, NamesUpdate update) {
    // During a rebuild the card has a temporary name, which isn't for the names line.
    std::string text =
        composedNames({.caption = form.AText[form.NamesField].Tag,
                       .mine = playerLine({form.MyName, form.MyNumber}),
                       .partner = playerLine({form.PartnerName, form.PartnerNumber}),
                       .cardName = form.Carried ? form.Carried->name : form.CardName},
                      update);
    AmpAdd(text);
    return text;
}

void composeNamesLine(Zevlin& form, NamesUpdate update) {
    toolkit::Label& line = form.AText[form.NamesField];
    const std::string text = lineToShow(form, update);
    const bool changes = text != line.Tag;
    const std::string shown = line.Caption;
    const toolkit::FontSpec font = line.Font;
    line.Font.Bold = true;
    line.Caption = text;
    FitText(form, form.CText, form.NamesField);
    // If the line is as it was, its suits are in place already.
    if (changes || (!text.empty() && line.Font != font))
        SetSym(form, form.NamesField);
    else
        line.Caption = shown;
    if (changes) SetMod(form);
}

} // namespace

void MMyID_Click(Zevlin& form) {
    procedure(form, "MMyID_Click", [&] { changeMyId(form); });
    tellFileFailures(form);
}

void MPartnerID_Click(Zevlin& form) {
    procedure(form, "MPartnerID_Click", [&] { changePartnerId(form); });
}

void ShowNames(Zevlin& form, NamesUpdate update) {
    procedure(form, "ShowNames", [&] {
        if (form.NamesField > 0) composeNamesLine(form, update);
    });
}

} // namespace zev
