#include <functional>

#include "app/initialize.h"
#include "app/layouts.h"
#include "form/settings.h"
#include "layout/layout_text.h"
#include "layout/write_layout.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/shell_folders.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class InitializeFailure : public FormTest {
  protected:
    ~InitializeFailure() override { toolkit::overridePrinterQuestion({}); }

    /// The trace line and the box of a start that ends.
    void expectEnd(const std::string& failure, int step, toolkit::Answer choice) {
        expectEndOf([&] { start(); }, failure, step, choice);
    }
    void expectEndOf(const std::function<void()>& run, const std::string& failure, int step,
                     toolkit::Answer choice) {
        announceError("Error in Initialize " + failure);
        answer(choice);
        EXPECT_TRUE(failsProgram(run));
        EXPECT_TRUE(
            traced("Error in Initialize " + failure + ", after step " + std::to_string(step)));
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::OkCancel);
        EXPECT_EQ(boxes[0].title, "");
        EXPECT_NE(boxes[0].icon, toolkit::Icon::None);
    }
    void expectBadLayout(const std::string& layout, const std::string& failure, int step) {
        writeLayout(layout);
        expectEnd(failure, step, toolkit::Answer::Cancel);
        EXPECT_EQ(boxes[0].text, layoutText(step));
        EXPECT_EQ(dataFileContent("Definitions.Ini"), layout);
    }
    static std::string lastLines(int step) {
        return "If you used the automatic self-installer, you should be able to uninstall ZEV from "
               "'Add and Remove Programs' in the Control Panel.  (The Control Panel is listed on "
               "the "
               "Windows 'Start' button.)\n\nTo re-install ZEV, go to its website: " +
               std::string(webAddress) +
               "\nand click the 'Install' button.\n\nIf this error persists, please report it "
               "to: " +
               std::string(supportAddress) + "\nand mention this Step#: " + std::to_string(step);
    }
    [[nodiscard]] std::string layoutText(int step) const {
        return "The 'Definitions.Ini' file in '" + dataFolder.string() +
               "' contains errors.\n\nThe best way to try to fix this is to delete the file and "
               "restart ZEV so that it can recreate the file.  If that doesn't work, please "
               "uninstall ZEV and re-install it (this will not affect any cards you've "
               "made).\n\nClick 'OK' to let ZEV delete the file for you, or 'Cancel' to try "
               "something else yourself.\n\nIf you click 'OK', please restart ZEV to see whether "
               "the problem has been fixed.\n\n" +
               lastLines(step);
    }
};

TEST_F(InitializeFailure, OptionsThatCannotBeReadAreOfferedForDeletion) {
    fs::remove(dataFile("ZEV.Ini"));
    fs::create_directory(dataFile("ZEV.Ini"));
    expectEnd("75, Path/File access error", 300, toolkit::Answer::Ok);
    EXPECT_FALSE(
        traced("Initialize step 310: ZEV.Ini opened successfully in " + dataFolder.string()));
    EXPECT_EQ(boxes[0].text,
              "The 'ZEV.Ini' file in '" + dataFolder.string() +
                  "' contains errors at Step#: 300\n\nThe best way to try to fix this is to delete "
                  "the file and start ZEV again.  If ZEV.Ini is deleted, you will have to re-enter "
                  "the settings you've chosen on the OPTIONS menu, including your name and ACBL "
                  "ID#.\n\nClick 'OK' to let ZEV delete the file now, or 'Cancel' to try something "
                  "else yourself.");
    // A folder can't be deleted as a file is; the failure is ignored.
    EXPECT_TRUE(fs::exists(dataFile("ZEV.Ini")));
}

TEST_F(InitializeFailure, OptionsAtFaultAreDeletedOnOk) {
    // Opening succeeds, reading doesn't.
    fs::remove(dataFile("ZEV.Ini"));
    fs::create_symlink("/proc/self/mem", dataFile("ZEV.Ini"));
    expectEnd("57, Device I/O error", 310, toolkit::Answer::Ok);
    EXPECT_TRUE(
        traced("Initialize step 310: ZEV.Ini opened successfully in " + dataFolder.string()));
    EXPECT_NE(boxes[0].text.find("' contains errors at Step#: 310\n"), std::string::npos);
    EXPECT_FALSE(fs::exists(fs::symlink_status(dataFile("ZEV.Ini"))));
}

TEST_F(InitializeFailure, OptionsAtFaultStayOnCancel) {
    fs::remove(dataFile("ZEV.Ini"));
    fs::create_symlink("/proc/self/mem", dataFile("ZEV.Ini"));
    expectEnd("57, Device I/O error", 310, toolkit::Answer::Cancel);
    EXPECT_TRUE(fs::exists(fs::symlink_status(dataFile("ZEV.Ini"))));
}

TEST_F(InitializeFailure, ABadLayoutIsDeletedOnOk) {
    writeLayout("nonsense\r\n");
    expectEnd("13, Type mismatch", 1500, toolkit::Answer::Ok);
    EXPECT_EQ(boxes[0].text, layoutText(1500));
    EXPECT_FALSE(fs::exists(dataFile("Definitions.Ini")));
}

/// Makes the fields anew, as at a start, over a layout that was put there since.
TEST_F(InitializeFailure, ALayoutThatOpensAndCannotBeRead) {
    start();
    fs::remove(dataFile("Definitions.Ini"));
    fs::create_symlink("/proc/self/mem", dataFile("Definitions.Ini"));
    expectEndOf([&] { Initialize(form); }, "57, Device I/O error", 1500, toolkit::Answer::Cancel);
    EXPECT_EQ(boxes[0].text, layoutText(1500));
}

TEST_F(InitializeFailure, ALayoutThatCannotBeOpened) {
    start();
    fs::remove(dataFile("Definitions.Ini"));
    fs::create_directory(dataFile("Definitions.Ini"));
    expectEndOf([&] { Initialize(form); }, "75, Path/File access error", 1480,
                toolkit::Answer::Cancel);
}

TEST_F(InitializeFailure, APrinterThatFailsIsBlamedOnTheOptionsThatNameIt) {
    toolkit::Printer first = toolkit::defaultPrinter();
    first.DeviceName = "First";
    toolkit::Printer second = first;
    second.DeviceName = "Second";
    toolkit::overridePrinters({first, second});
    toolkit::overridePrinterQuestion([first](const std::string& name) {
        if (name == "Second") throw toolkit::RunTimeError(toolkit::Failure::PrinterError);
        return first;
    });
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Second\r\n");
    expectEnd("482, Printer error", 550, toolkit::Answer::Ok);
    EXPECT_NE(boxes[0].text.find("' contains errors at Step#: 550\n"), std::string::npos);
    EXPECT_FALSE(fs::exists(dataFile("ZEV.Ini")));
}

TEST_F(InitializeFailure, APrinterThatFailsInARebuildIsTracedAndLeavesTheCard) {
    // Its name is too long for the options, which so keep the other one's.
    const std::string longName = "The first of the two printers";
    toolkit::Printer first = toolkit::defaultPrinter();
    first.DeviceName = longName;
    toolkit::Printer second = first;
    second.DeviceName = "Second";
    second.hdc = 0;
    toolkit::overridePrinters({first, second});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Second\r\n");
    start();
    form.AMark[1].Visible = true;
    toolkit::overridePrinterQuestion([](const std::string& /*name*/) -> toolkit::Printer {
        throw toolkit::RunTimeError(toolkit::Failure::PrinterError);
    });
    announceError("Error in Initialize 482, Printer error");
    RebuildScreenImage(form);
    EXPECT_TRUE(traced("Error in Initialize 482, Printer error, after step 550"));
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.CurrentPrinter.DeviceName, longName);
}

TEST_F(InitializeFailure, ALayoutThatEndsInItsEnvironment) {
    expectBadLayout("15\r\n", "62, Input past end of file", 1500);
}

TEST_F(InitializeFailure, ALayoutThatEndsBeforeItsFonts) {
    expectBadLayout("15,19200\r\n", "62, Input past end of file", 1510);
}

TEST_F(InitializeFailure, ALayoutThatEndsInItsOffsets) {
    expectBadLayout(replaced(fewFields(), std::string(zeroOffsets) + "4\r\n", "0,0").substr(0, 130),
                    "62, Input past end of file", 1515);
}

TEST_F(InitializeFailure, ALayoutWithoutACountOfMarks) {
    expectBadLayout(replaced(fewFields(), "\r\n4\r\n", "\r\nfour\r\n"), "13, Type mismatch", 1900);
}

TEST_F(InitializeFailure, ALayoutWithTooFewMarks) {
    const auto layout = smallLayout({{}}, {});
    expectBadLayout(layout.substr(0, layout.size() - 3), "62, Input past end of file", 2100);
}

TEST_F(InitializeFailure, AMarkWithANumberAboveItsPlace) {
    expectBadLayout(replaced(fewFields(), "2,200,", "3,200,"), "9, Subscript out of range", 2000);
}

TEST_F(InitializeFailure, AMarkWithANegativeNumber) {
    expectBadLayout(replaced(fewFields(), "2,200,", "-1,200,"), "9, Subscript out of range", 2000);
}

TEST_F(InitializeFailure, AMarkWithANumberBeyondSixteenBits) {
    expectBadLayout(replaced(fewFields(), "2,200,", "70000,200,"), "6, Overflow", 2000);
}

TEST_F(InitializeFailure, ATextWithANumberAboveAllTexts) {
    expectBadLayout(replaced(fewFields(), "2,100,400,", "3,100,400,"), "9, Subscript out of range",
                    2200);
}

TEST_F(InitializeFailure, ATextThatIsCutOff) {
    const auto layout = smallLayout({}, {{}});
    expectBadLayout(layout.substr(0, layout.size() - 5), "62, Input past end of file", 2200);
}

TEST_F(InitializeFailure, ATabTableThatLeavesItsBounds) {
    expectBadLayout(smallLayout({{}}, {}, "9,1\r\n", 3), "9, Subscript out of range", 2300);
}

TEST_F(InitializeFailure, ALayoutThatIsNotThereIsToldInItsOwnWords) {
    fs::remove(dataFile("Definitions.Ini"));
    fs::remove(programFolder / "Definitions.Ini.15");
    fs::create_directory(programFolder / "Definitions.Ini.15");
    expectEnd("75, Path/File access error", 1350, toolkit::Answer::Ok);
    EXPECT_EQ(
        boxes[0].text,
        "The original distribution file that describes how cards should look is missing or "
        "unusable.\n\nIf you installed ZEV by downloading a ZIP file, you can extract that "
        "missing file from that ZIP.\nOtherwise, please uninstall ZEV and re-install it (this "
        "will not affect any cards you've made.)\n\n" +
            lastLines(1350));
}

TEST_F(InitializeFailure, AFolderInThePlaceOfTheLayoutStays) {
    fs::remove(dataFile("Definitions.Ini"));
    fs::create_directory(dataFile("Definitions.Ini"));
    announceError("Error in CheckIniUpdate 75");
    EXPECT_TRUE(failsProgram([&] { start(); }));
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(fs::exists(dataFile("Definitions.Ini")));
}

} // namespace
} // namespace zev::test
