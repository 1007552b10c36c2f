#include "card/take_card.h"

#include <algorithm>
#include <system_error>

#include "card/card_file.h"
#include "card/card_names.h"
#include "card/check_mod.h"
#include "card/file_seen.h"
#include "card/lifecycle.h"
#include "card/load.h"
#include "card/save.h"
#include "form/file_note.h"
#include "form/modified.h"
#include "form/panels.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/files.h"
#include "toolkit/base/path_text.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/dialog.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

bool isSame(const fs::path& one, const fs::path& other) {
    std::error_code ignored;
    return fs::equivalent(one, other, ignored);
}

/// The card that lies in the data folder under the name that the path ends with.
std::optional<std::string> cardAt(const Zevlin& form, const fs::path& file) {
    const auto fileName = toolkit::textFromPath(file);
    // Without a data folder the cards lie in the folder at work.
    const fs::path folder = form.DataFolder.empty() ? "." : form.DataFolder;
    if (!fileName || !isSame(file.parent_path(), folder)) return std::nullopt;
    if (!hasCardExtension(*fileName)) return std::nullopt;
    std::string name = cleanedCardName(*fileName);
    if (name.empty() || isTemporaryCard(name)) return std::nullopt;
    const auto card = findCard(form, name);
    if (!card || !isSame(*card, file)) return std::nullopt;
    return name;
}

/// The file's name as a box can show it, in one line.
std::string shownName(const fs::path& file) {
    constexpr char firstPrinted = ' ';
    std::string name = toolkit::displayText(file.filename());
    std::ranges::replace_if(
        name, [](char character) { return toolkit::code(character) < firstPrinted; }, '?');
    return name;
}

void tellNotTaken(const fs::path& file, std::string_view reason) {
    toolkit::tell("'" + shownName(file) + "' " + std::string(reason) +
                      ".  Nothing was copied into your cards.",
                  toolkit::Icon::Exclamation);
}

/// What is in the file, if that is a card.
std::optional<std::string> readForeignCard(const fs::path& file) {
    try {
        std::string content = toolkit::readFile(file);
        if (isCard(content)) return content;
        tellNotTaken(file, "is not a card that Zevlin can read");
    } catch (const std::exception&) {
        tellNotTaken(file, "could not be read (" + toolkit::currentFailure().description() + ")");
    }
    return std::nullopt;
}

std::string freeName(const Zevlin& form, const std::string& wanted) {
    std::string name = wanted;
    for (int number = 2; findCard(form, name); ++number) name = numberedCardName(wanted, number);
    return name;
}

bool mayCopy(const fs::path& file, const std::string& name) {
    std::string foreignName = shownName(file);
    if (hasCardExtension(foreignName))
        foreignName.resize(foreignName.size() - cardExtension.size());
    const std::string target = name == foreignName ? "" : " as '" + name + "'";
    return toolkit::show(
               {.text = "Copy '" + foreignName + "' into your cards" + target + " and open it?",
                .buttons = toolkit::Buttons::YesNo,
                .icon = toolkit::Icon::Question,
                .title = {},
                .preset = {}}) == toolkit::Answer::Yes;
}

enum class Copied { Done, NameTaken, Failed };

Copied writeCopy(Zevlin& form, const fs::path& source, const std::string& name,
                 const std::string& content) {
    try {
        toolkit::writeNewFile(cardPath(form, name), content);
        return Copied::Done;
    } catch (const std::exception&) {
        const auto failure = toolkit::currentFailure();
        if (failure.failure() == toolkit::Failure::FileAlreadyExists) return Copied::NameTaken;
        traceFailure(form, "Error in TakeCopy: #", failure);
        tellNotTaken(source, "could not be copied (" + failure.description() + ")");
        return Copied::Failed;
    }
}

/// Another program, or the save of the changes, may take a name while the player is asked; then the
/// next one is asked about.
std::optional<std::string> copyUnderFreeName(Zevlin& form, const fs::path& file,
                                             const std::string& content, Changes& changes) {
    const std::string wanted = cardNameFor(toolkit::displayText(file.filename()));
    while (true) {
        std::string name = freeName(form, wanted);
        if (!mayCopy(file, name)) return std::nullopt;
        // The chooser has asked before it came up.
        if (!form.ChooserOpens && changes == Changes::None) changes = settleChanges(form);
        if (changes == Changes::Kept) return std::nullopt;
        const Copied copied = writeCopy(form, file, name, content);
        if (copied == Copied::Done) return name;
        if (copied == Copied::Failed) return std::nullopt;
    }
}

std::optional<std::string> copyIfWanted(Zevlin& form, const fs::path& file) {
    const auto content = readForeignCard(file);
    if (!content) return std::nullopt;
    Changes changes = Changes::None;
    auto name = copyUnderFreeName(form, file, *content, changes);
    // The card stays, so its changes count again.
    if (!name && changes == Changes::Discarded) SetMod(form);
    return name;
}

void openOwnCard(Zevlin& form, const std::string& name) {
    if (form.ChooserOpens) {
        form.TSaveAs.Text = name;
        form.ChooserTaken = true;
        return;
    }
    if (CheckMod(form)) return;
    MNew_Click(form);
    form.CardName = name;
    GetCardFile(form);
    if (showsTitle(form)) SetCaption(form);
    form.P1.Move(0, 0);
}

} // namespace

std::optional<std::string> ownCardOf(const Zevlin& form, const fs::path& file) {
    if (const auto name = cardAt(form, file)) return name;
    std::error_code failed;
    const fs::path real = fs::canonical(file, failed);
    return failed ? std::nullopt : cardAt(form, real);
}

std::optional<std::string> takeCopy(Zevlin& form, const fs::path& file) {
    std::optional<std::string> name;
    procedure(form, "TakeCopy", [&] { name = copyIfWanted(form, file); });
    return name;
}

bool takesDroppedCard(const Zevlin& form) {
    if (form.Printing) return false;
    return form.ChooserOpens || (form.IsLoaded && form.MenusEnabled && form.MOpen.Enabled);
}

void openDroppedCard(Zevlin& form, const fs::path& file) {
    procedure(form, "OpenDroppedCard", [&] {
        if (form.THelp.Visible) hideHelp(form);
        hideFileNote(form);
        const auto own = ownCardOf(form, file);
        const auto name = own ? own : takeCopy(form, file);
        if (name) openOwnCard(form, *name);
    });
}

} // namespace zev
