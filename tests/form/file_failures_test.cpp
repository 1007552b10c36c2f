#include "form/file_failures.h"

#include "support/form_test.h"

namespace zev::test {
namespace {

class FileFailures : public FormTest {
  protected:
    FileFailures() { form.DataFolder = dataFolder; }
    void note(std::string_view what, toolkit::Failure failure) {
        noteFileFailure(form, what, toolkit::RunTimeError(failure));
    }
};

TEST_F(FileFailures, AreToldInOneBoxALineEach) {
    note(optionsFailure, toolkit::Failure::DiskFull);
    note(copyFailure, toolkit::Failure::PermissionDenied);
    tellFileFailures(form);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "Zevlin could not use its folder '" + dataFolder.string() +
                  "' as it should:\n"
                  "\n    The settings (ZEV.Ini): Disk full"
                  "\n    A temporary copy of the card ($$Tempcard.zev): Permission denied"
                  "\n\nYour card is not affected.  Zevlin keeps it, and goes on.");
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Exclamation);
}

TEST_F(FileFailures, ThatComeTwiceAreToldOnce) {
    note(optionsFailure, toolkit::Failure::DiskFull);
    note(optionsFailure, toolkit::Failure::DiskFull);
    tellFileFailures(form);
    ASSERT_EQ(boxes.size(), 1U);
    const std::string& text = boxes[0].text;
    EXPECT_EQ(text.find("ZEV.Ini"), text.rfind("ZEV.Ini"));
}

TEST_F(FileFailures, AreNotToldAgainUntilSomethingElseHappens) {
    const auto fail = [&] {
        note(optionsFailure, toolkit::Failure::DiskFull);
        tellFileFailures(form);
    };
    fail();
    fail();
    EXPECT_EQ(boxes.size(), 1U);
    note(layoutFailure, toolkit::Failure::DiskFull);
    tellFileFailures(form);
    EXPECT_EQ(boxes.size(), 2U);
    // After a success there is nothing to tell.
    tellFileFailures(form);
    EXPECT_EQ(boxes.size(), 2U);
    fail();
    EXPECT_EQ(boxes.size(), 3U);
}

TEST_F(FileFailures, AreTracedNotedAndGotOver) {
    announceError("Error in this ");
    const auto fail = [] { throw toolkit::RunTimeError(toolkit::Failure::DeviceIo); };
    EXPECT_FALSE(trappedAndNoted(form, "Error in this ", optionsFailure, fail));
    EXPECT_TRUE(trappedAndNoted(form, "Error in this ", optionsFailure, [] {}));
    EXPECT_TRUE(boxes.empty());
    tellFileFailures(form);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NE(boxes[0].text.find("The settings (ZEV.Ini): Device I/O error"), std::string::npos);
}

} // namespace
} // namespace zev::test
