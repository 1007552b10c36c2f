#include "cards/command_options.h"

#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

namespace zev {
namespace {

using Texts = std::vector<std::string>;

CommandOptions optionsOf(Texts arguments) {
    const auto asked = readCommand(std::move(arguments));
    if (const auto* answer = std::get_if<CommandAnswer>(&asked)) {
        ADD_FAILURE() << answer->text;
        return {};
    }
    return std::get<CommandOptions>(asked);
}

CommandAnswer answerOf(Texts arguments) {
    const auto asked = readCommand(std::move(arguments));
    if (const auto* answer = std::get_if<CommandAnswer>(&asked)) return *answer;
    ADD_FAILURE() << "the command would run";
    return {};
}

bool has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(CommandOptions, ReadsEachCommand) {
    EXPECT_EQ(optionsOf({"check", "a"}).command, Command::Check);
    EXPECT_EQ(optionsOf({"text", "a"}).command, Command::Text);
    EXPECT_EQ(optionsOf({"diff", "a", "b"}).command, Command::Diff);
}

TEST(CommandOptions, KeepsTheCardsInTheirOrder) {
    EXPECT_EQ(optionsOf({"check", "b", "a", "c"}).cards, (Texts{"b", "a", "c"}));
}

TEST(CommandOptions, OptionsStandBeforeOrBehindTheCards) {
    EXPECT_TRUE(optionsOf({"text", "--json", "a"}).json);
    EXPECT_TRUE(optionsOf({"text", "a", "--json"}).json);
    EXPECT_FALSE(optionsOf({"text", "a"}).json);
    EXPECT_TRUE(optionsOf({"diff", "a", "b", "--json"}).json);
}

TEST(CommandOptions, TakesAListOfNames) {
    const CommandOptions lines = optionsOf({"check", "--files-from", "-"});
    EXPECT_EQ(lines.filesFrom, "-");
    EXPECT_FALSE(lines.nullSeparated);
    const CommandOptions nulls = optionsOf({"check", "-0", "--files-from=names", "a"});
    EXPECT_EQ(nulls.filesFrom, "names");
    EXPECT_TRUE(nulls.nullSeparated);
    EXPECT_EQ(nulls.cards, Texts{"a"});
}

TEST(CommandOptions, TakesAnyNameOfACard) {
    const Texts names{"text", "check", "[a,b]", "",     "\x01[",      "{}",
                      "%%",   "/p",    "a=b",   "\xFF", "two\nlines", "\"q\""};
    Texts arguments{"check"};
    arguments.insert(arguments.end(), names.begin(), names.end());
    EXPECT_EQ(optionsOf(arguments).cards, names);
}

TEST(CommandOptions, TakesAnyNameOfAList) {
    EXPECT_EQ(optionsOf({"check", "--files-from", "[a,b]"}).filesFrom, "[a,b]");
}

TEST(CommandOptions, BehindTwoDashesNothingIsAnOption) {
    EXPECT_EQ(optionsOf({"check", "--", "--json", "-a"}).cards, (Texts{"--json", "-a"}));
}

TEST(CommandOptions, HelpNamesTheCommandsAndEachItsOptions) {
    const CommandAnswer all = answerOf({"--help"});
    EXPECT_FALSE(all.isFailure);
    for (const char* command : {"text", "diff", "check"}) {
        EXPECT_TRUE(has(all.text, command));
        const CommandAnswer one = answerOf({command, "--help"});
        EXPECT_FALSE(one.isFailure);
        EXPECT_TRUE(has(one.text, std::string("zevlin-cards ") + command)) << one.text;
        EXPECT_TRUE(has(one.text, "CARD"));
    }
    EXPECT_TRUE(has(answerOf({"text", "-h"}).text, "--json"));
}

TEST(CommandOptions, TellsTheVersion) {
    const CommandAnswer version = answerOf({"--version"});
    EXPECT_FALSE(version.isFailure);
    EXPECT_TRUE(version.text.starts_with("zevlin-cards ")) << version.text;
    EXPECT_TRUE(version.text.ends_with("\n"));
}

TEST(CommandOptions, RefusesWhatItDoesNotKnow) {
    for (const Texts& wrong :
         {Texts{}, Texts{"print"}, Texts{"check"}, Texts{"text", "--json"},
          Texts{"text", "--jsn", "a"}, Texts{"diff", "a"}, Texts{"diff", "a", "b", "c"},
          Texts{"check", "--json", "a"}, Texts{"diff", "--files-from", "-", "a", "b"}}) {
        const CommandAnswer answer = answerOf(wrong);
        EXPECT_TRUE(answer.isFailure);
        EXPECT_TRUE(answer.text.starts_with("zevlin-cards: ")) << answer.text;
    }
}

} // namespace
} // namespace zev
