#include "card_picture/layout_reader.h"
#include "card_tool/sample_card.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

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
    EXPECT_EQ(files, 10);
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
