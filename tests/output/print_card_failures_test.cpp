#include "output/print_card.h"
#include "output/print_test.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class PrintCardFailures : public PrintTest {
  protected:
    ~PrintCardFailures() override { toolkit::overridePrinterQuestion({}); }
};

TEST_F(PrintCardFailures, AFailureInTheMiddleIsTracedAndTheCardComesBack) {
    startWithContent();
    announceError("Error in mPrint: ");
    form.ActiveControl = nullptr;
    form.P1.GotFocus = [] { throw toolkit::RunTimeError(toolkit::Failure::Overflow); };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_TRUE(traced("Error in mPrint: 6, Overflow"));
    EXPECT_TRUE(fileQuestions.empty());
    expectUnharmed();
}

TEST_F(PrintCardFailures, AFailureBeforeItsFirstStepIsTracedAsItsOwnAndChangesNothing) {
    toolkit::overridePrinters({});
    toolkit::overridePrinterQuestion([](const std::string& /*name*/) -> toolkit::Printer {
        throw toolkit::RunTimeError(toolkit::Failure::OutOfMemory);
    });
    startWithContent();
    announceError("Error in mPrint: ");
    const std::string options = dataFileContent("ZEV.Ini");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_TRUE(traced("Error in mPrint: 7, Out of memory"));
    EXPECT_EQ(dataFileContent("ZEV.Ini"), options);
    expectUnharmed();
}

} // namespace
} // namespace zev::test
