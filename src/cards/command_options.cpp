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

constexpr int mostWorkers = 256;
// Scales of the card that the program can show.
constexpr int narrowestImage = 480;
constexpr int widestImage = 2396;

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
        addPdf();
        addImage();
    }

    /// Throws CLI::ParseError, help and version among them.
    CommandOptions read(std::vector<std::string> arguments) {
        std::ranges::for_each(arguments, shieldBracket);
        std::ranges::reverse(arguments); // as the library takes them
        app_.parse(std::move(arguments));
        std::ranges::for_each(options_.cards, unshield);
        for (std::string* path :
             {&options_.filesFrom, &options_.outputFolder, &options_.layout, &options_.together})
            unshield(*path);
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

    /// What the commands that make files have in common.
    void addMaking(CLI::App& command) {
        command
            .add_option("-o,--output", options_.outputFolder,
                        "The folder for the files, made where it isn't there; else the current one")
            ->type_name("FOLDER");
        command
            .add_option("--layout", options_.layout,
                        "Another layout than the Definitions.Ini of Zevlin's folder")
            ->type_name("FILE");
        command.add_flag(
            "--stamp", options_.stamp,
            "Date and time in the time stamp; those of SOURCE_DATE_EPOCH if it is set");
        command.add_flag("--newer", options_.newer,
                         "Skip a card whose file is newer than the card");
        command.add_option("-j,--jobs", options_.workers, "So many at once; else one a processor")
            ->type_name("NUMBER")
            ->check(CLI::Range(1, mostWorkers));
        command.add_flag("-q,--quiet", options_.quiet, "No progress on the terminal");
        addList(command, "Cards and folders of cards");
    }

    void addPdf() {
        CLI::App& command = addCommand(Command::Pdf, "pdf", "Make pages as Print card makes them");
        CLI::Option* partner = command.add_flag_callback(
            "--partner", [this] { options_.owner = CardOwner::Partner; },
            "The partner's card, with the partner's name first");
        command
            .add_flag_callback(
                "--both", [this] { options_.owner = CardOwner::Both; },
                "Both cards, one behind the other in one file")
            ->excludes(partner);
        command.add_option("--paper", options_.paper, "letter or a4; else what is usual here")
            ->type_name("PAPER")
            ->check(CLI::IsMember({"letter", "a4"}));
        command.add_flag("--black", options_.black, "In black and grey");
        CLI::Option* together =
            command.add_option("--together", options_.together, "All pages in one file");
        together->type_name("FILE");
        addMaking(command);
        together->excludes(command.get_option("--output"));
    }

    void addImage() {
        CLI::App& command =
            addCommand(Command::Image, "image", "Make images as Export Image makes them");
        command.add_option("--type", options_.imageType, "png, gif, jpg or bmp; else png")
            ->type_name("TYPE")
            ->check(CLI::IsMember({"png", "gif", "jpg", "bmp"}));
        command.add_option("--width", options_.width, "In pixels; else 1198")
            ->type_name("PIXELS")
            ->check(CLI::Range(narrowestImage, widestImage));
        addMaking(command);
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
