#include "card/chooser.h"

#include "app/trace.h"
#include "app/zevlin.h"
#include "card/card_file.h"
#include "card/card_names.h"
#include "card/modified.h"
#include "toolkit/ansi.h"
#include "toolkit/dialog.h"
#include "toolkit/file_names.h"
#include "toolkit/files.h"

namespace zev {
namespace {

constexpr std::size_t longestListInPrompt = 30;

std::string promptFor(const std::vector<std::string>& names) {
    if (names.empty()) return "Enter a name for a new card";
    std::string prompt = "Select from list or enter a name for a new card\n";
    for (std::size_t i = 0; i < names.size() && i < longestListInPrompt; ++i) {
        prompt += "\n  " + names[i];
    }
    if (names.size() > longestListInPrompt) prompt += "\n  ...";
    return prompt;
}

bool canBeCardName(const std::string& name) {
    return !hasForbiddenCharacter(name) &&
           toolkit::isPossibleFileName(name + std::string(cardExtension));
}

std::string askForName(Zevlin& form) {
    form.ChooserCancelled = form.ChooserTaken = false;
    form.TSaveAs = toolkit::ask(
        {.prompt = promptFor(cardNames(form)), .title = form.Caption, .preset = form.TSaveAs});
    std::string name(toolkit::trim(form.TSaveAs));
    if (name.empty()) {
        form.ChooserCancelled = true;
        form.TSaveAs.clear();
        SetCaption(form);
        return {};
    }
    form.ChooserTaken = true;
    if (canBeCardName(name)) return name;
    toolkit::tell("'" + name +
                      "' is an invalid file name.  Names cannot contain any of these characters:  "
                      "/  :  *  \\  ?  \"  <  >",
                  toolkit::Icon::None);
    return {};
}

} // namespace

std::vector<std::string> cardNames(const Zevlin& form) {
    auto names = toolkit::listFiles(form.DataFolder, cardExtension);
    for (std::string& name : names) name.resize(name.size() - cardExtension.size());
    return names;
}

std::string GetFileNames(Zevlin& form) {
    Traceit(form, "GetFileNames");
    std::string name;
    trapped(form, "Error in GetFileNames: #", [&] { name = askForName(form); });
    return name;
}

} // namespace zev
