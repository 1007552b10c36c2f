#include "form/services.h"

#include "form/options.h"
#include "form/settings.h"
#include "form/trace.h"
#include "layout/version.h"
#include "support/form_test.h"
#include "toolkit/base/error.h"
#include "toolkit/base/system.h"

namespace zev::test {
namespace {

class Services : public FormTest {
  protected:
    ~Services() override { toolkit::overrideSystem({}); }

    /// Lets the machine tell nothing of itself.
    static void silenceSystem() {
        toolkit::overrideSystem({.version = []() -> std::string { fail(); },
                                 .memory = []() -> toolkit::MemoryFacts { fail(); },
                                 .usage = []() -> toolkit::MemoryUsage { fail(); }});
    }

  private:
    [[noreturn]] static void fail() { throw toolkit::RunTimeError(toolkit::Failure::FileNotFound); }
};

TEST_F(Services, TheVersionIsTheBuildsAndNeverSortsBelowTheSwitches) {
    wireOnly();
    form.DataFolder = dataFolder;
    AppVersion(form);
    EXPECT_EQ(form.ProgramVersion, std::to_string(versionMajor) + "." +
                                       std::to_string(versionMinor) + "." +
                                       std::string(versionRevision));
    EXPECT_FALSE(isBelow(form.ProgramVersion, switchesVersion));
    EXPECT_TRUE(traced("AppVersion"));
}

TEST_F(Services, ARevisionOfFourCharactersShowsItsLastTwoInBrackets) {
    EXPECT_EQ(versionText(1, 0, "181"), "1.0.181");
    EXPECT_EQ(versionText(1, 0, "1812"), "1.0.18(12)");
}

TEST_F(Services, TheSystemsVersionIsTracedAndToldAsItIs) {
    toolkit::overrideSystem({.version = [] { return "6.1, Build 42, Platform 2, SP 1.0"; }});
    wireOnly();
    form.DataFolder = dataFolder;
    EXPECT_EQ(WinVer(form), "6.1, Build 42, Platform 2, SP 1.0");
    EXPECT_EQ(traceLines(), std::vector<std::string>{"WinVer"});
}

TEST_F(Services, TheMemoryLoadIsAFigureWithItsUnitAndNothingAroundIt) {
    toolkit::overrideSystem({.memory = [] { return toolkit::MemoryFacts{.loadPercent = 7}; }});
    wireOnly();
    form.DataFolder = dataFolder;
    EXPECT_EQ(MemoryLoad(form), "7%");
    EXPECT_TRUE(traceLines().empty());
}

TEST_F(Services, TheWorkingSetComesWithItsPeak) {
    toolkit::overrideSystem(
        {.usage = [] { return toolkit::MemoryUsage{.current = 1000, .peak = 2000}; }});
    wireOnly();
    form.DataFolder = dataFolder;
    std::uint64_t peak = 0;
    EXPECT_EQ(GetMemoryUsage(form, peak), 1000U);
    EXPECT_EQ(peak, 2000U);
    EXPECT_TRUE(traceLines().empty());
}

TEST_F(Services, AFailureIsTracedAndGivesAnEmptyResult) {
    announceError("Error in ");
    silenceSystem();
    wireOnly();
    form.DataFolder = dataFolder;
    EXPECT_EQ(WinVer(form), "");
    EXPECT_TRUE(traced("Error in WinVer: #53, File not found"));
    EXPECT_EQ(MemoryLoad(form), "");
    EXPECT_TRUE(traced("Error in MemoryLoad: #53, File not found"));
    std::uint64_t peak = 5;
    EXPECT_EQ(GetMemoryUsage(form, peak), 0U);
    EXPECT_EQ(peak, 0U);
    EXPECT_TRUE(traced("Error in GetMemoryUsage: #53, File not found"));
}

TEST_F(Services, AFailureWithinATraceLineIsNotTracedAgain) {
    announceError("Error ");
    silenceSystem();
    wireOnly();
    form.DataFolder = dataFolder;
    Traceit(form, "Error of its own");
    EXPECT_TRUE(traceFile().ends_with(" Error of its own\r\nSystem Memory Load: \r\n"
                                      "ZEV's Curr Memory usage:  0\r\n"
                                      "ZEV's Peak Memory usage:  0\r\n"));
    EXPECT_EQ(traceFile().find("Error in"), std::string::npos);
    Traceit(form, "after it");
    EXPECT_TRUE(traced("after it"));
}

TEST_F(Services, TheOptionsFileTellsWhatTheServicesTell) {
    toolkit::overrideSystem(
        {.version = [] { return "6.1, Build 42, Platform 2, SP 1.0"; },
         .memory =
             [] {
                 return toolkit::MemoryFacts{
                     .physicalBytes = 3ULL << 30, .pageFileBytes = 5ULL << 30, .loadPercent = 7};
             },
         .usage = [] { return toolkit::MemoryUsage{.current = 1234567, .peak = 2345678}; }});
    start();
    IniWrite(form);
    EXPECT_NE(dataFileContent("ZEV.Ini").find(
                  "'    Windows version:    6.1, Build 42, Platform 2, SP 1.0\r\n"),
              std::string::npos);
    EXPECT_TRUE(dataFileContent("ZEV.Ini").ends_with("'    Physical Memory:    3072 MB\r\n"
                                                     "'    Total Memory:       5120 MB\r\n"
                                                     "'    Memory Load:        7%\r\n"
                                                     "'    Curr Memory usage:  1,234,567\r\n"
                                                     "'    Peak Memory usage:  2,345,678\r\n"));
}

TEST_F(Services, TheOptionsFileIsWrittenByAMachineThatTellsNothing) {
    announceError("Error in ");
    silenceSystem();
    start();
    IniWrite(form);
    EXPECT_FALSE(form.OptionsUnwritten);
    EXPECT_TRUE(dataFileContent("ZEV.Ini").ends_with("'    Physical Memory:    0 MB\r\n"
                                                     "'    Total Memory:       0 MB\r\n"
                                                     "'    Memory Load:        \r\n"
                                                     "'    Curr Memory usage:  0\r\n"
                                                     "'    Peak Memory usage:  0\r\n"));
}

TEST_F(Services, TheKindOfBuildIsWhatTheBuildSays) {
    wireOnly();
    form.DataFolder = dataFolder;
    EXPECT_EQ(IsProductionEnvironment(form), productionBuild);
}

} // namespace
} // namespace zev::test
