#include "layout/initialize_run.h"

#include "support/form_test.h"

namespace zev::test {
namespace {

using toolkit::Failure;
using toolkit::RunTimeError;

class InitializeRunTest : public FormTest {};

TEST_F(InitializeRunTest, AFailureIsTracedWithItsStep) {
    start();
    announceError("Error in Initialize ");
    traceFailedInitialize(form, RunTimeError(Failure::TypeMismatch), 1510);
    EXPECT_TRUE(traced("Error in Initialize 13, Type mismatch, after step 1510"));
}

TEST_F(InitializeRunTest, WhatIsGotOverIsTracedAndNoted) {
    start();
    announceError("Error in Initialize ");
    EXPECT_FALSE(getOver(form, {.step = 1300}, layoutFailure,
                         [] { throw RunTimeError(Failure::PathFileAccess); }));
    EXPECT_TRUE(traced("Error in Initialize 75, Path/File access error, after step 1300"));
    tellFileFailures(form);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NE(boxes[0].text.find(layoutFailure), std::string::npos) << boxes[0].text;
}

TEST_F(InitializeRunTest, WhatSucceedsLeavesNoTrace) {
    start();
    const std::size_t lines = traceLines().size();
    bool done = false;
    EXPECT_TRUE(getOver(form, {.step = 1300}, layoutFailure, [&] { done = true; }));
    EXPECT_TRUE(done);
    EXPECT_EQ(traceLines().size(), lines);
    tellFileFailures(form);
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
