#include "cards/command_options.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include <CLI/CLI.hpp>

#include "form/settings.h"
#include "layout/version.h"

namespace zev {
namespace {

constexpr const char* programName = "zevlin-cards";

/// The library takes "[a,b]" for two values. Behind this it is one.
constexpr char shield = '\x01';

void shieldBracket(std::string& argument) {
    if (argument.starts_with('[') || argument.starts_with(shield)) argument.insert(0, 1, shield);
}

void unshield(std::string& argument) {
    if (argument.starts_with(shield)) argument.erase(0, 1);
}

/// The command line as it is described to the library, which fills in the options.
class CommandLine {
  public:
    CommandLine() : app_("Convention cards of Zevlin, without a window", programName) {
        // On Windows a path may begin with a slash, too.
        app_.allow_windows_style_options(false);
        app_.set_version_flag("--version",
                              std::string(programName) + " " +
                                  versionText(versionMajor, versionMinor, versionRevision),
                              "Say which version this is, and end");
        app_.set_help_flag("-h,--help", "Say what can be asked, and end");
        app_.require_subcommand(1);
        app_.get_formatter()->label("SUBCOMMAND", "COMMAND");
        app_.get_formatter()->label("Subcommands", "Commands");
        app_.get_formatter()->label("Positionals", "Cards");
        app_.footer("A CARD is a file, or the name of a card in Zevlin's folder.\n"
                    "Exit status: 0 all is well, 1 a card or a folder failed, 2 nothing was done.");
        addText();
        addDiff();
        addCheck();
    }

    /// Throws CLI::ParseError, help and version among them.
    CommandOptions read(std::vector<std::string> arguments) {
        std::ranges::for_each(arguments, shieldBracket);
        std::ranges::reverse(arguments); // as the library takes them
        app_.parse(std::move(arguments));
        std::ranges::for_each(options_.cards, unshield);
        unshield(options_.filesFrom);
        const CLI::App& command = *app_.get_subcommands().front();
        if (options_.command != Command::Diff && options_.cards.empty() &&
            options_.filesFrom.empty())
            throw CLI::RequiredError(command.get_name() + ": a card, or --files-from");
        return options_;
    }

    CommandAnswer answer(const CLI::ParseError& error) {
        std::ostringstream told;
        std::ostringstream wrong;
        const bool isFailure = app_.exit(error, told, wrong) != 0;
        return {isFailure ? std::string(programName) + ": " + wrong.str() : told.str(), isFailure};
    }

  private:
    CLI::App& addCommand(Command which, const std::string& name, const std::string& description) {
        CLI::App& command = *app_.add_subcommand(name, description);
        command.parse_complete_callback([this, which] { options_.command = which; });
        return command;
    }

    CLI::Option& addCards(CLI::App& command, const std::string& what) {
        CLI::Option& cards = *command.add_option("CARD", options_.cards, what);
        cards.type_name("");
        return cards;
    }

    void addList(CLI::App& command, const std::string& what) {
        addCards(command, what);
        command
            .add_option("--files-from", options_.filesFrom,
                        "Take more names from a file, one a line; - is the standard input")
            ->type_name("FILE");
        command.add_flag("-0,--null", options_.nullSeparated,
                         "Names in that file end with a null, as those of find -print0");
    }

    void addText() {
        CLI::App& command =
            addCommand(Command::Text, "text", "Tell what is filled in, field by field");
        command.add_flag("--json", options_.json, "As JSON, for other programs");
        addList(command, "Cards: files, or names in Zevlin's folder");
    }

    void addDiff() {
        CLI::App& command =
            addCommand(Command::Diff, "diff", "Tell the fields in which two cards differ");
        command.add_flag("--json", options_.json, "As JSON, for other programs");
        addCards(command, "Two cards: files, or names in Zevlin's folder").required()->expected(2);
        command.footer("Exit status: 0 they are the same, 1 they differ, 2 one can't be read.");
    }

    void addCheck() {
        CLI::App& command =
            addCommand(Command::Check, "check", "Tell what is wrong with cards, by file and line");
        addList(command, "Cards and folders of cards");
    }

    CLI::App app_;
    CommandOptions options_;
};

} // namespace

std::variant<CommandOptions, CommandAnswer> readCommand(std::vector<std::string> arguments) {
    CommandLine line;
    try {
        return line.read(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return line.answer(error);
    }
}

} // namespace zev
