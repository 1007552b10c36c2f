#include "cards/page_worker.h"

#include <sstream>

#include "cards/message_text.h"
#include "output/print_test.h"
#include "support/system.h"
#include "toolkit/base/write_file.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class PageWorker : public PrintTest {
  protected:
    PageWorker() {
        for (const char* name : {"Two Over One.zev", "Standard American.zev"})
            fs::copy_file(fs::path(ZEVLIN_CARD_FOLDER) / name, dataFolder / name);
        const fs::path layout = programFolder / "Definitions.Ini.15";
        fs::create_directories(order.folder = home / "run" / "form");
        fs::copy_file(layout, order.folder / "Definitions.Ini");
        toolkit::writeFile(order.folder / "ZEV.Ini", "Zoom=11\r\n");
        order.options.command = Command::Pdf;
    }

    /// Its answers, the greeting first.
    std::vector<std::string> answersTo(const std::vector<PageTask>& tasks) {
        std::string text;
        for (const PageTask& task : tasks) text += taskText(task);
        std::istringstream in(text);
        std::ostringstream out;
        exitCode = workOnPages(order, in, out);
        std::vector<std::string> answers;
        std::istringstream told(out.str());
        for (std::string answer; std::getline(told, answer, '\0');) answers.push_back(answer);
        return answers;
    }
    [[nodiscard]] fs::path card(const char* name) const { return dataFolder / name; }

    WorkerOrder order;
    int exitCode = -1;
};

using Answers = std::vector<std::string>;

TEST_F(PageWorker, SaysThatItIsReadyAndAnswersEachTask) {
    EXPECT_EQ(answersTo({{.card = card("Two Over One.zev"), .output = home / "a.pdf"},
                         {.card = card("Standard American.zev"), .output = home / "b.pdf"}}),
              (Answers{"", "", ""}));
    EXPECT_EQ(exitCode, 0);
    EXPECT_NE(toolkit::readFile(home / "a.pdf").find(pdfTitle("Two Over One")), std::string::npos);
    EXPECT_TRUE(fs::exists(home / "b.pdf"));
}

TEST_F(PageWorker, TellsWhatFailedAndGoesOn) {
    const auto bad = home / "bad.zev";
    toolkit::writeFile(bad, "\"\",\"\"\n0\n");
    fs::create_directories(home / "a.pdf");
    EXPECT_EQ(answersTo({{.card = bad, .output = home / "bad.pdf"},
                         {.card = home / "none.zev", .output = home / "none.pdf"},
                         {.card = card("Two Over One.zev"), .output = home / "a.pdf"},
                         {.card = card("Two Over One.zev"), .output = home / "b.pdf"}}),
              (Answers{"", utf8Of(bad) + ":2: a card without check boxes",
                       utf8Of(home / "none.zev") + ": File not found",
                       utf8Of(home / "a.pdf") + ": Path/File access error", ""}));
    EXPECT_FALSE(fs::exists(home / "bad.pdf"));
    EXPECT_TRUE(fs::exists(home / "b.pdf"));
}

TEST_F(PageWorker, OneFileOfSeveralCardsHasItsOwnTitle) {
    order.options.together = "all cards";
    EXPECT_EQ(answersTo({{.card = card("Two Over One.zev"), .output = {}},
                         {.card = card("Standard American.zev"), .output = {}},
                         {.card = {}, .output = home / "x.pdf"}}),
              (Answers{"", "", "", ""}));
    EXPECT_NE(toolkit::readFile(home / "x.pdf").find(pdfTitle("all cards")), std::string::npos);
}

TEST_F(PageWorker, AFileTellsNoTimeUnlessItIsGiven) {
    const PageTask task{.card = card("Two Over One.zev"), .output = home / "a.pdf"};
    const auto told = [&] {
        answersTo({task});
        return dateOfPdf(toolkit::readFile(task.output));
    };
    EXPECT_EQ(told(), "");
    order.options.stamp = true;
    EXPECT_TRUE(told().starts_with("D:20"));
    test_system::setVariable("SOURCE_DATE_EPOCH", "1790000000");
    EXPECT_EQ(told(), "D:20260921141320Z");
    test_system::clearVariable("SOURCE_DATE_EPOCH");
}

TEST_F(PageWorker, LeavesNothingBehind) {
    answersTo({{.card = card("Two Over One.zev"), .output = home / "a.pdf"}});
    const fs::directory_iterator entries(order.folder.parent_path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
    EXPECT_EQ(toolkit::readFile(order.folder / "ZEV.Ini"), "Zoom=11\r\n");
}

TEST_F(PageWorker, TakesTheInstalledLayoutWhereThePlayerHasNone) {
    const PageTask task{.card = card("Two Over One.zev"), .output = home / "a.pdf"};
    answersTo({task});
    const std::string usual = toolkit::readFile(task.output);
    fs::remove(order.folder / "Definitions.Ini");
    EXPECT_EQ(answersTo({task}), (Answers{"", ""}));
    EXPECT_TRUE(toolkit::readFile(task.output) == usual);
    fs::remove(programFolder / "Definitions.Ini.15");
    EXPECT_EQ(answersTo({task}),
              (Answers{utf8Of(programFolder / "Definitions.Ini.15") + ": File not found"}));
}

TEST_F(PageWorker, SaysWhyItIsNotReady) {
    toolkit::writeFile(order.folder / "Definitions.Ini", "no layout");
    const auto answers = answersTo({});
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_NE(answers.front(), "");
    EXPECT_EQ(exitCode, 1);
}

} // namespace
} // namespace zev::test
