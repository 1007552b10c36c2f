#include "card_picture/layout_reader.h"
#include "card_tool/sample_card.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace card_picture {
namespace {

std::string assets() { return std::filesystem::path(CARD_DESCRIPTION).parent_path().string(); }

/// Runs the tool; its exit code, and what it said.
struct Outcome {
    int code = -1;
    std::string said{};
};

Outcome runTool(const QStringList& arguments) {
    QProcess tool;
    tool.start(QStringLiteral(CARD_TOOL), arguments);
    tool.waitForFinished(60'000);
    return {tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1,
            tool.readAllStandardError().toStdString()};
}

QStringList buildArguments(const std::string& description, const QString& output) {
    return {QStringLiteral("build"), QStringLiteral(CARD_FONTS),
            QString::fromStdString(description), output};
}

TEST(Tool, WritesTheSameBytesOnEachRun) {
    const QTemporaryDir folder;
    QStringList arguments = buildArguments(CARD_DESCRIPTION, folder.path());
    arguments << QString::fromStdString(assets() + "/standard-american.txt")
              << QString::fromStdString(assets() + "/two-over-one.txt");
    ASSERT_EQ(runTool(arguments).code, 0);
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(CARD_OUTPUT)) {
        const std::string again =
            folder.path().toStdString() + "/" + entry.path().filename().string();
        EXPECT_TRUE(fileBytes(entry.path().string()) == fileBytes(again)) << again;
        ++files;
    }
    EXPECT_EQ(files, 11);
}

std::string described(const QTemporaryDir& folder, const std::string& text) {
    std::string path = folder.path().toStdString() + "/card.txt";
    std::ofstream(path) << text;
    return path;
}

TEST(Tool, NamesTheLineThatDoesntFit) {
    const QTemporaryDir folder;
    const std::string path =
        described(folder, "panel\nframe\nrow <a 2000>\nend\nend\npanel\nend\n");
    const Outcome run = runTool(buildArguments(path, folder.path()));
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.said.find("line 3"), std::string::npos) << run.said;
}

TEST(Tool, RefusesAFieldNameThatIsTaken) {
    const QTemporaryDir folder;
    const std::string path = described(folder, "panel\nrow [a] [a]\nend\npanel\nend\n");
    const Outcome run = runTool(buildArguments(path, folder.path()));
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.said.find("taken: a"), std::string::npos) << run.said;
}

TEST(Tool, RefusesWordsItDoesntKnow) {
    const QTemporaryDir folder;
    const Outcome run =
        runTool(buildArguments(described(folder, "panel\nfrobnicate\nend\n"), folder.path()));
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.said.find("card.txt:2: no such word: frobnicate"), std::string::npos) << run.said;
}

TEST(Tool, GivesEachFieldTheNameThatAPersonSays) {
    const std::vector<std::string> lines = linesOf(fileBytes(CARD_OUTPUT "/names.txt"));
    EXPECT_EQ(lines.size(), fieldNumbers("mark").size() + fieldNumbers("text").size());
    const auto nameOf = [&](const std::string& kind, const std::string& id) {
        const std::string head = kind + " " + std::to_string(fieldNumbers(kind).at(id)) + " ";
        const auto line =
            std::ranges::find_if(lines, [&](const auto& text) { return text.starts_with(head); });
        return line == lines.end() ? std::string() : line->substr(head.size());
    };
    EXPECT_EQ(nameOf("mark", "1nt.stayman"), "Notrump opening bids, 2 clubs Stayman");
    EXPECT_EQ(nameOf("mark", "s.akx.1"), "Leads versus suits, ace of A K x");
    EXPECT_EQ(nameOf("text", "names"), "Names, both partners");
}

/// Two fields, and the names that the file gives them.
Outcome buildWithNames(const std::string& names) {
    const QTemporaryDir folder;
    std::ofstream(folder.path().toStdString() + "/names.txt") << names;
    return runTool(
        buildArguments(described(folder, "panel\nrow [a] <b>\nend\npanel\nend\n"), folder.path()));
}

TEST(Tool, RefusesNamesThatDontFitTheFields) {
    EXPECT_EQ(buildWithNames("# names\n\na: One\nb: Two\n").code, 0);
    EXPECT_NE(buildWithNames("a: One\n").said.find("no spoken name: b"), std::string::npos);
    EXPECT_NE(buildWithNames("a: One\nb: Two\nc: Three\n").said.find("no field: c"),
              std::string::npos);
    EXPECT_NE(buildWithNames("a: One\nb: One\n").said.find("names.txt:2: two fields"),
              std::string::npos);
    EXPECT_NE(buildWithNames("a: One\na: Two\n").said.find("has two names: a"), std::string::npos);
    EXPECT_NE(buildWithNames("a\n").said.find("names.txt:1: no name"), std::string::npos);
}

TEST(Tool, StoresQuotesAsTheCharacterThatStandsForThem) {
    card_tool::Sheet sheet;
    sheet.texts.push_back({.id = "a"});
    const card_tool::SampleCard sample{.name = "x", .texts = {{"a", R"(say "2")"}}};
    EXPECT_NE(card_tool::cardText(sample, sheet)
                  .find("1,\"say \xB2"
                        "2\xB2\",0\r\n"),
              std::string::npos);
}

TEST(Tool, RefusesASampleThatNamesAMissingField) {
    const card_tool::SampleCard sample{.name = "x", .marks = {"nowhere"}};
    EXPECT_ANY_THROW(static_cast<void>(card_tool::cardText(sample, card_tool::Sheet{})));
}

} // namespace
} // namespace card_picture
