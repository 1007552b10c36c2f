#include "output/print_options.h"

#include "output/print_test.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class PrintOptions : public PrintTest {};

TEST_F(PrintOptions, TheAlternateMethodIsToggledAndKept) {
    start();
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Use alternate print method"));
    EXPECT_TRUE(form.mPrintAlt.Checked);
    EXPECT_EQ(form.PrintMethod, alternatePrintMethod);
    EXPECT_TRUE(traced("mPrintAlt_Click"));
    EXPECT_NE(settings().find("PrintAlt=1 "), std::string::npos);
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Use alternate print method"));
    EXPECT_EQ(form.PrintMethod, primaryPrintMethod);
    EXPECT_NE(settings().find("PrintAlt=0 "), std::string::npos);
}

TEST_F(PrintOptions, WhileTheProgramInitializesTheMethodStays) {
    start();
    form.Initializing = true;
    form.Trace.clear();
    mPrintAlt_Click(form);
    form.Initializing = false;
    EXPECT_FALSE(form.mPrintAlt.Checked);
    EXPECT_TRUE(form.Trace.empty());
}

TEST_F(PrintOptions, ColourAndBlackExcludeEachOther) {
    start();
    MColor_Click(form);
    EXPECT_TRUE(form.MColor.Checked);
    EXPECT_TRUE(traced("MColor_Click"));
    EXPECT_NE(settings().find("Color=1 "), std::string::npos);
    MMono_Click(form);
    EXPECT_TRUE(form.MMono.Checked);
    EXPECT_FALSE(form.MColor.Checked);
    EXPECT_TRUE(traced("MMono_Click"));
    EXPECT_NE(settings().find("Mono=1 "), std::string::npos);
    MMono_Click(form);
    EXPECT_FALSE(form.MMono.Checked);
    EXPECT_FALSE(form.MColor.Checked);
}

TEST_F(PrintOptions, WhileTheProgramInitializesNoOptionsAreWritten) {
    start();
    form.Initializing = true;
    form.Trace.clear();
    MColor_Click(form);
    form.Initializing = false;
    EXPECT_FALSE(traced("IniWrite"));
}

} // namespace
} // namespace zev::test
