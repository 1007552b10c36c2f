// Jobs on a disk that takes nothing more, at each of their stages.
#include <csignal>
#include <sys/resource.h>

#include "card/save.h"
#include "output/print_test.h"
#include "toolkit/testing/test_clipboard.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

/// While it lives no file can grow.
class FullDisk {
  public:
    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit none = before_;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
};

class NoRoom : public PrintTest {
  protected:
    void SetUp() override {
        for (const char* error : {"Error in IniWrite ", "Error in MSave_Click ",
                                  "Error in MSaveShapes ", "Error in PrintPictureBox at step "})
            announceError(error);
    }
    /// Expects the job's own box, and after it one that tells what else found no room.
    void expectToldOnce(const std::string& job) {
        ASSERT_EQ(boxes.size(), 2U);
        EXPECT_TRUE(boxes[0].text.starts_with(job)) << boxes[0].text;
        EXPECT_NE(boxes[1].text.find("The settings (ZEV.Ini): Device I/O error"), std::string::npos)
            << boxes[1].text;
    }
    void expectNextPrintWorks() {
        boxes.clear();
        EXPECT_FLOAT_EQ(print().width, 8.1F * points);
        EXPECT_TRUE(boxes.empty());
        expectUnharmed();
    }
};

TEST_F(NoRoom, FromTheStartThePageIsRefusedOrToldAndTheCardStays) {
    startWithContent();
    const std::string layout = dataFileContent("Definitions.Ini");
    answerFile(home / "page.pdf");
    {
        const FullDisk full;
        EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    }
    expectToldOnce("Device I/O error Printer Error #57");
    EXPECT_FALSE(std::filesystem::exists(home / "page.pdf"));
    EXPECT_EQ(dataFileContent("Definitions.Ini"), layout);
    expectUnharmed();
    expectNextPrintWorks();
}

TEST_F(NoRoom, FromTheQuestionOnThePageIsToldAndTheCardStays) {
    startWithContent();
    const std::string layout = dataFileContent("Definitions.Ini");
    std::optional<FullDisk> full;
    answerFile(home / "page.pdf");
    whileAsking = [&] { full.emplace(); };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    full.reset();
    whileAsking = {};
    expectToldOnce("Device I/O error Printer Error #57");
    EXPECT_EQ(dataFileContent("Definitions.Ini"), layout);
    expectUnharmed();
    expectNextPrintWorks();
}

TEST_F(NoRoom, AnExportIsToldAndTheCardStays) {
    startWithContent();
    answerInput("a.png");
    {
        const FullDisk full;
        EXPECT_TRUE(toolkit::test::chooseMenu("File>Export Partner Image to file as..>PNG"));
    }
    expectToldOnce("Could not save card image.");
    expectUnharmed();
    expectNextPrintWorks();
}

TEST_F(NoRoom, ACopyNeedsNoRoom) {
    startWithContent();
    {
        const FullDisk full;
        EXPECT_TRUE(toolkit::test::chooseMenu("File>Copy to Clipboard"));
    }
    EXPECT_EQ(toolkit::test::clipboardPicture().width(), 1198);
    expectUnharmed();
    expectNextPrintWorks();
}

} // namespace
} // namespace zev::test
