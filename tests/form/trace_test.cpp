#include "form/trace.h"

#include <algorithm>
#include <chrono>
#include <sstream>
#include <stdexcept>

#include "app/layouts.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/files.h"
#include "toolkit/base/key.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class Trace : public FormTest {
  protected:
    Trace() {
        writeLayout(fewFields());
        toolkit::overrideClock(0);
        form.DataFolder = dataFolder;
        form.ProgramVersion = "9.8.7";
    }
    [[nodiscard]] std::string header() const {
        return toolkit::dateTimeText() + "\t" + form.ProgramVersion + "\r\n";
    }
    /// How often a text stands in the trace file.
    [[nodiscard]] int countInFile(std::string_view text) const {
        const std::string file = traceFile();
        int count = 0;
        for (auto at = file.find(text); at != std::string::npos; at = file.find(text, at + 1)) {
            ++count;
        }
        return count;
    }
};

TEST_F(Trace, ALineBeginsWithTheSecondsSinceMidnight) {
    const double midnight = -toolkit::secondsSinceMidnight() + 86400;
    toolkit::overrideClock(midnight + 12345.678);
    Traceit(form, "text");
    EXPECT_EQ(form.Trace.front(), "12345.68 text");
    toolkit::overrideClock(midnight + 5.5);
    Traceit(form, "text");
    EXPECT_EQ(form.Trace.front(), "00005.50 text");
}

TEST_F(Trace, TheTimeWrapsAtMidnight) {
    const double midnight = -toolkit::secondsSinceMidnight() + 86400;
    toolkit::overrideClock(midnight + 86399);
    Traceit(form, "late");
    EXPECT_EQ(form.Trace.front(), "86399.00 late");
    toolkit::overrideClock(midnight + 86401);
    Traceit(form, "early");
    EXPECT_EQ(form.Trace.front(), "00001.00 early");
}

TEST_F(Trace, TheRingHoldsAHundredLinesAndTheOldestGoes) {
    for (int i = 1; i <= 101; ++i) Traceit(form, "line " + std::to_string(i));
    EXPECT_EQ(form.Trace.size(), 100U);
    EXPECT_TRUE(form.Trace.front().ends_with("line 101"));
    EXPECT_TRUE(form.Trace.back().ends_with("line 2"));
    EXPECT_FALSE(fs::exists(dataFile("Trace.txt")));
}

TEST_F(Trace, AnErrorInAnyCaseWritesTheRingOldestFirstWithTheMemoryBelow) {
    announceError("eRRoR");
    Traceit(form, "one");
    Traceit(form, "two");
    Traceit(form, "eRRoR three");
    const std::string file = traceFile();
    EXPECT_TRUE(form.Trace.empty());
    ASSERT_TRUE(file.starts_with("\r\n" + header()));
    const auto one = file.find(" one\r\n");
    const auto two = file.find(" two\r\n");
    const auto three = file.find(" eRRoR three\r\nSystem Memory Load: ");
    EXPECT_LT(one, two);
    EXPECT_LT(two, three);
    ASSERT_NE(three, std::string::npos);
    const auto current = file.find("%\r\nZEV's Curr Memory usage:  ", three);
    EXPECT_NE(file.find("\r\nZEV's Peak Memory usage:  ", current), std::string::npos);
    EXPECT_TRUE(file.ends_with("\r\n"));
}

TEST_F(Trace, TheWordFurtherOnWritesNothing) {
    Traceit(form, "an Error");
    Traceit(form, "erro");
    EXPECT_FALSE(fs::exists(dataFile("Trace.txt")));
    EXPECT_EQ(form.Trace.size(), 2U);
}

TEST_F(Trace, TwoErrorsInARowMakeTwoBlocksTheSecondWithOneLine) {
    announceError("Error");
    Traceit(form, "before");
    Traceit(form, "Error 1");
    const std::size_t first = traceFile().size();
    Traceit(form, "Error 2");
    const std::string second = traceFile().substr(first);
    EXPECT_TRUE(second.starts_with("\r\n" + header()));
    EXPECT_EQ(second.find("Error 1"), std::string::npos);
    EXPECT_EQ(countInFile(" before\r\n"), 1);
    EXPECT_EQ(countInFile("System Memory Load: "), 2);
}

TEST_F(Trace, ABlockOfTheRingIsAppended) {
    announceError("Error");
    toolkit::writeFile(dataFile("Trace.txt"), "kept\r\n");
    Traceit(form, "Error");
    EXPECT_TRUE(traceFile().starts_with("kept\r\n\r\n" + header()));
}

TEST_F(Trace, TurnedOnItEmptiesTheFileOnceAndWritesEachLineAtOnce) {
    toolkit::writeFile(dataFile("Trace.txt"), "gone");
    form.TraceOn = true;
    Traceit(form, "one");
    const std::string head = header() + "Current path: " + dataFolder.string() + "\r\n";
    EXPECT_TRUE(traceFile().starts_with(head));
    EXPECT_TRUE(traceFile().ends_with(" one\r\n"));
    Traceit(form, "two");
    EXPECT_TRUE(traceFile().ends_with(" two\r\n"));
    EXPECT_LT(traceFile().find(" one\r\n"), traceFile().find(" two\r\n"));
    EXPECT_EQ(countInFile("Current path: "), 1);
    EXPECT_TRUE(form.Trace.empty());
}

TEST_F(Trace, TurnedOnAnErrorWritesOneLineOnly) {
    announceError("Error");
    Traceit(form, "in the ring");
    form.TraceOn = true;
    Traceit(form, "Error now");
    EXPECT_EQ(countInFile("in the ring"), 0);
    EXPECT_EQ(countInFile(" Error now\r\n"), 1);
    EXPECT_EQ(form.Trace.size(), 1U);
}

TEST_F(Trace, TurnedOnItDescribesTheControlsOnceTheyExist) {
    writeOptions("Zoom=5\r\nTrace=1\r\n");
    start();
    const std::string file = traceFile();
    const auto at = file.find("Dimensions:\r\n");
    ASSERT_NE(at, std::string::npos);
    EXPECT_EQ(countInFile("Dimensions:"), 1);
    EXPECT_EQ(file.find("    AText(1) font name, size, height, textheight: Arial "), at + 13);
    EXPECT_NE(file.find("    Test font name, size, textheight: Arial Narrow "), std::string::npos);
    EXPECT_NE(file.find("    Scalemodes - Form,P1,P2,P3: 1 1 1 1\r\nSystem Memory Load: "),
              std::string::npos);
}

TEST_F(Trace, ADataFolderThatCannotBeWrittenLeavesTheProgramFolder) {
    form.DataFolder = "/proc/self/fdinfo";
    form.TraceOn = true;
    Traceit(form, "line");
    const std::string file = toolkit::readFile(programFolder / "Trace.txt");
    EXPECT_NE(file.find("Current path: /proc/self/fdinfo\r\n"), std::string::npos);
    EXPECT_TRUE(file.ends_with(" line\r\n"));
}

TEST_F(Trace, TurnedOnALineTouchesNothingButItsFile) {
    form.TraceOn = true;
    Traceit(form, "one");
    const auto before = fs::last_write_time(dataFolder) - std::chrono::hours(1);
    fs::last_write_time(dataFolder, before);
    Traceit(form, "two");
    EXPECT_TRUE(traceFile().ends_with(" two\r\n"));
    EXPECT_EQ(fs::last_write_time(dataFolder), before) << "an entry was made or removed";
}

TEST_F(Trace, ATraceFileThatCannotBeWrittenLeavesTheProgramFolder) {
    fs::create_directory(dataFile("Trace.txt"));
    form.TraceOn = true;
    Traceit(form, "line");
    EXPECT_TRUE(toolkit::readFile(programFolder / "Trace.txt").ends_with(" line\r\n"));
    fs::remove(dataFile("Trace.txt"));
}

TEST_F(Trace, ARingThatCannotBeWrittenIsKeptWithItsOwnFailure) {
    announceError("Error");
    fs::create_directory(dataFile("Trace.txt"));
    Traceit(form, "before");
    Traceit(form, "Error 1");
    ASSERT_EQ(form.Trace.size(), 3U);
    EXPECT_TRUE(form.Trace[0].ends_with(" Error in Traceit: #75, Path/File access error"));
    EXPECT_TRUE(form.Trace[1].ends_with(" Error 1"));
    fs::remove(dataFile("Trace.txt"));
}

TEST_F(Trace, ShiftF3TurnsItOnForThisRunOnly) {
    start();
    toolkit::test::typeKey(toolkit::key::f3, toolkit::shift::shift);
    EXPECT_TRUE(form.TraceOn);
    EXPECT_FALSE(form.TraceSetting);
    Traceit(form, "straight to the file");
    EXPECT_EQ(countInFile(" straight to the file\r\n"), 1);
}

TEST_F(Trace, AltF3TurnsItOffForThisRunOnly) {
    writeOptions("Zoom=5\r\nTrace=1\r\n");
    start();
    toolkit::test::typeKey(toolkit::key::f3, toolkit::shift::alt);
    EXPECT_FALSE(form.TraceOn);
    EXPECT_TRUE(form.TraceSetting);
}

TEST_F(Trace, OtherKeysWithF3ChangeNothing) {
    start();
    toolkit::test::typeKey(toolkit::key::f3);
    toolkit::test::typeKey(toolkit::key::f3, toolkit::shift::ctrl);
    EXPECT_FALSE(form.TraceOn);
}

TEST_F(Trace, ShiftF4TellsTheImagesPlaceAndNoEditor) {
    start();
    toolkit::test::typeKey(toolkit::key::f4, toolkit::shift::shift);
    EXPECT_TRUE(traced("**F4** P1=0, 0, 17970, 18660, visible=True no text entry visible"));
}

TEST_F(Trace, ShiftF4TellsTheOpenEditorsPlace) {
    start();
    clickText(1);
    ASSERT_TRUE(form.CText.Visible);
    toolkit::test::typeKey(toolkit::key::f4, toolkit::shift::shift);
    const auto lines = traceLines();
    const auto found = std::ranges::find_if(
        lines, [](const std::string& line) { return line.starts_with("**F4** P1="); });
    ASSERT_NE(found, lines.end());
    const auto& box = form.CText;
    std::ostringstream expected;
    expected << "visible=True ctext: " << box.Left << ", " << box.Top << ", ";
    EXPECT_NE(found->find(expected.str()), std::string::npos) << *found;
}

TEST_F(Trace, AFailureInAProcedureIsTracedAndTheProcedureEnds) {
    announceError("Error in Test: #");
    const bool whole = trapped(form, "Error in Test: #", [] {
        throw toolkit::RunTimeError(toolkit::Failure::DivisionByZero);
    });
    EXPECT_FALSE(whole);
    EXPECT_TRUE(traced("Error in Test: #11, Division by zero"));
}

TEST_F(Trace, AProcedureTracesItsNameAndThenRuns) {
    bool wasTraced = false;
    procedure(form, "MTest_Click",
              [&] { wasTraced = form.Trace.front().ends_with(" MTest_Click"); });
    EXPECT_TRUE(wasTraced);
    EXPECT_EQ(form.Trace.size(), 1U);
}

TEST_F(Trace, WhatElseThereIsToTellFollowsTheNameOfAProcedureBehindABlank) {
    procedure(form, "Test_MouseDown", "2", [] {});
    EXPECT_TRUE(form.Trace.front().ends_with(" Test_MouseDown 2"));
}

TEST_F(Trace, AFailureEndsAProcedureAndIsTracedWithItsNameAlone) {
    announceError("Error in Test_MouseDown: #");
    bool wentOn = false;
    procedure(form, "Test_MouseDown", "2", [&] {
        toolkit::deleteFile(dataFile("not there"));
        wentOn = true;
    });
    EXPECT_FALSE(wentOn);
    EXPECT_TRUE(traced("Test_MouseDown 2"));
    EXPECT_TRUE(traced("Error in Test_MouseDown: #53, File not found"));
}

TEST_F(Trace, AProcedureLetsNoFailureOfTheLibraryThroughEither) {
    announceError("Error in MTest_Click: #");
    procedure(form, "MTest_Click", [] { throw std::out_of_range("1"); });
    EXPECT_TRUE(traced("Error in MTest_Click: #51, Internal error"));
}

TEST_F(Trace, TruthValuesAreWrittenAsWords) {
    EXPECT_EQ(truthText(true), "True");
    EXPECT_EQ(truthText(false), "False");
}

} // namespace
} // namespace zev::test
