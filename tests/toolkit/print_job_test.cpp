#include "toolkit/print/print_job.h"

#include <cmath>
#include <sstream>

#include <gtest/gtest.h>

#include "support/pdf_content.h"
#include "support/temporary_folder.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/failure_of.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/dialog_answers.h"

namespace toolkit::test {
namespace {

class PrintJobs : public testing::Test {
  protected:
    PrintJobs() {
        // Pages are of letter size.
        overridePlace("en_US");
        answerDialogsWith(
            {.message = {}, .input = {}, .popup = {}, .file = [this](const auto& question) {
                 asked = question;
                 return target;
             }});
    }
    ~PrintJobs() override {
        answerDialogsWith({});
        overridePlace({});
    }
    PrintJobs(const PrintJobs&) = delete;
    PrintJobs& operator=(const PrintJobs&) = delete;

    bool start() {
        return job.start(printerNamed(printToPdfName), {.title = "Jones", .filePreset = "x.pdf"});
    }
    /// Number and description of the failure that the call raises.
    template <typename Call>
    static std::string reasonOf(Call&& call) {
        try {
            std::forward<Call>(call)();
        } catch (const RunTimeError& failure) {
            return std::to_string(failure.number()) + ", " + failure.description();
        }
        return {};
    }
    const TemporaryFolder folder;
    std::filesystem::path target = folder / "page.pdf";
    FileQuestion asked;
    PrintJob job;
};

TEST_F(PrintJobs, TellsTheFileThatWasWrittenOnce) {
    EXPECT_EQ(job.finish(), std::nullopt);
    ASSERT_TRUE(start());
    EXPECT_EQ(job.finish(), target);
    EXPECT_EQ(job.finish(), std::nullopt);
}

#ifndef _WIN32
TEST_F(PrintJobs, LinesOfTextStandAtTheirPlacesOnTheirPages) {
    ASSERT_TRUE(start());
    const FontSpec font{.Name = "Arial", .Size = 20};
    job.write("First line", font, 1440, 720);
    job.turnPage();
    job.write("Other page", font, 0, 0);
    job.finish();
    // A line each for pages and words, with the places of these.
    std::istringstream output(zev::test::outputOf("pdftotext -bbox '" + target.string() + "' -"));
    std::vector<std::string> found;
    for (std::string line; std::getline(output, line);) {
        if (line.find("<page") != std::string::npos) found.emplace_back("page");
        const std::size_t end = line.find("</word>");
        if (end == std::string::npos) continue;
        const std::size_t word = line.rfind('>', end) + 1;
        const auto place = [&](const char* mark) {
            return " " + std::to_string(std::lround(zev::test::numbersAfter(line, mark).at(0)));
        };
        found.push_back(line.substr(word, end - word) + place("xMin=\"") + place("yMin=\""));
    }
    EXPECT_EQ(found, (std::vector<std::string>{"page", "First 72 36", "line 116 36", "page",
                                               "Other 0 0", "page 56 0"}));
}
#endif

TEST_F(PrintJobs, NothingIsWrittenWithoutADocument) {
    job.write("lost", {}, 0, 0);
    ASSERT_TRUE(start());
    job.finish();
    EXPECT_EQ(zev::test::unpackedPdf(readFile(target)).find(" Tf"), std::string::npos);
}

TEST_F(PrintJobs, WritesThePageWhenItIsFinished) {
    ASSERT_TRUE(start());
    EXPECT_EQ(asked.preset, "x.pdf");
    EXPECT_EQ(asked.pattern, "*.pdf");
    EXPECT_TRUE(job.stretch(std::make_shared<const Bitmap>(8, 6), {0, 0, 4860, 5000}));
    job.finish();
    EXPECT_FALSE(job.isOpen());
    EXPECT_TRUE(readFile(target).starts_with("%PDF"));
}

TEST_F(PrintJobs, ACancelledQuestionDropsTheJob) {
    target.clear();
    EXPECT_FALSE(start());
    EXPECT_FALSE(job.isOpen());
    EXPECT_FALSE(job.stretch(std::make_shared<const Bitmap>(8, 6), {}));
    job.finish();
}

TEST_F(PrintJobs, WithoutACardThePageStaysBlank) {
    ASSERT_TRUE(start());
    EXPECT_FALSE(job.draw(nullptr, {0, 0, 10, 10}));
    EXPECT_FALSE(job.stretch(nullptr, {0, 0, 10, 10}));
    job.finish();
    EXPECT_TRUE(readFile(target).starts_with("%PDF"));
}

TEST_F(PrintJobs, AFileThatCantBeMadeRefusesIt) {
    target = folder / "none" / "page.pdf";
    EXPECT_EQ(reasonOf([&] { static_cast<void>(start()); }), "482, Printer error (Path not found)");
    EXPECT_FALSE(job.isOpen());
}

TEST_F(PrintJobs, WithoutAPrinterItIsRefused) {
    EXPECT_EQ(reasonOf([&] { static_cast<void>(job.start(Printer{}, {})); }), "482, Printer error");
}

TEST_F(PrintJobs, APrinterThatTheServiceDoesntKnowRefusesItInTheServicesWords) {
    Printer printer = printerNamed(printToPdfName);
    printer.DeviceName = "No such printer of the service";
    const auto reason = reasonOf([&] { static_cast<void>(job.start(printer, {})); });
    EXPECT_TRUE(reason.starts_with("482, Printer error (")) << reason;
    EXPECT_GT(reason.size(), std::string_view("482, Printer error ()").size());
}

TEST_F(PrintJobs, AnAbandonedDocumentLeavesNoFile) {
    ASSERT_TRUE(start());
    job.abandon();
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(PrintJobs, AnAbandonedDocumentLeavesTheFormerFile) {
    writeFile(target, "a page");
    ASSERT_TRUE(start());
    EXPECT_EQ(readFile(target), "a page");
    job.abandon();
    EXPECT_EQ(readFile(target), "a page");
}

TEST_F(PrintJobs, AFullDiskFailsAndLeavesTheDevice) {
    target = "/dev/full";
    ASSERT_TRUE(start());
    EXPECT_EQ(failureOf([&] { job.finish(); }), static_cast<int>(Failure::DiskFull));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
    EXPECT_FALSE(job.isOpen());
}

} // namespace
} // namespace toolkit::test
