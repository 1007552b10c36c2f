#include "toolkit/print_job.h"

#include <gtest/gtest.h>

#include "toolkit/dialog.h"
#include "toolkit/failure_of.h"
#include "toolkit/files.h"
#include "toolkit/printers.h"
#include "toolkit/temporary_folder.h"

namespace toolkit::test {
namespace {

class PrintJobs : public testing::Test {
  protected:
    PrintJobs() {
        answerDialogsWith(
            {.message = {}, .input = {}, .popup = {}, .file = [this](const auto& question) {
                 asked = question;
                 return target;
             }});
    }
    ~PrintJobs() override { answerDialogsWith({}); }
    PrintJobs(const PrintJobs&) = delete;
    PrintJobs& operator=(const PrintJobs&) = delete;

    DocumentStart start() {
        return job.start(printerNamed(printToPdfName), {.title = "Jones", .filePreset = "x.pdf"});
    }
    const TemporaryFolder folder;
    std::filesystem::path target = folder / "page.pdf";
    FileQuestion asked;
    PrintJob job;
};

TEST_F(PrintJobs, WritesThePageWhenItIsFinished) {
    ASSERT_EQ(start(), DocumentStart::Open);
    EXPECT_EQ(asked.preset, "x.pdf");
    EXPECT_EQ(asked.pattern, "*.pdf");
    EXPECT_TRUE(job.stretch(std::make_shared<const Bitmap>(8, 6), {0, 0, 4860, 5000}));
    job.finish();
    EXPECT_FALSE(job.isOpen());
    const std::string file = readFile(target);
    EXPECT_TRUE(file.starts_with("%PDF"));
    EXPECT_NE(file.find("q 583.2000 0 0 600.0000 0.0000 192.0000 cm"), std::string::npos);
    EXPECT_NE(file.find("(Jones)"), std::string::npos);
}

TEST_F(PrintJobs, ACancelledQuestionDropsTheJob) {
    target.clear();
    EXPECT_EQ(start(), DocumentStart::Dropped);
    EXPECT_FALSE(job.isOpen());
    EXPECT_FALSE(job.stretch(std::make_shared<const Bitmap>(8, 6), {}));
    job.finish();
}

TEST_F(PrintJobs, AFileThatCantBeMadeRefusesIt) {
    target = folder / "none" / "page.pdf";
    EXPECT_EQ(start(), DocumentStart::Refused);
    EXPECT_EQ(job.start(Printer{}, {}), DocumentStart::Refused);
}

TEST_F(PrintJobs, AnAbandonedDocumentLeavesNoFile) {
    ASSERT_EQ(start(), DocumentStart::Open);
    job.abandon();
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(PrintJobs, AnAbandonedDocumentLeavesTheFormerFile) {
    writeFile(target, "a page");
    ASSERT_EQ(start(), DocumentStart::Open);
    EXPECT_EQ(readFile(target), "a page");
    job.abandon();
    EXPECT_EQ(readFile(target), "a page");
}

TEST_F(PrintJobs, AFullDiskFailsAndLeavesTheDevice) {
    target = "/dev/full";
    ASSERT_EQ(start(), DocumentStart::Open);
    EXPECT_EQ(failureOf([&] { job.finish(); }), static_cast<int>(Failure::DiskFull));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
    EXPECT_FALSE(job.isOpen());
}

} // namespace
} // namespace toolkit::test
