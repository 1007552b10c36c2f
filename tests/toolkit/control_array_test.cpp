#include "toolkit/model/control_array.h"

#include <gtest/gtest.h>

#include "toolkit/failure_of.h"
#include "toolkit/model/label.h"

namespace toolkit {
namespace {

using test::failureOf;

TEST(ControlArray, BeginsWithItsTemplateOnly) {
    const ControlArray<Label> labels;
    EXPECT_EQ(labels.UBound(), 0);
    EXPECT_TRUE(labels.exists(0));
    EXPECT_FALSE(labels.exists(1));
    EXPECT_FALSE(labels.exists(-1));
}

TEST(ControlArray, LoadCopiesTheTemplateUnshown) {
    ControlArray<Label> labels;
    labels[0].Caption.assign(1, 'x');
    labels[0].Visible = true;
    EXPECT_EQ(labels.Load(1).Caption, "x");
    EXPECT_FALSE(labels[1].Visible);
    EXPECT_EQ(labels.UBound(), 1);
}

TEST(ControlArray, AnIndexWithoutElementFails) {
    ControlArray<Label> labels;
    EXPECT_EQ(failureOf([&] { (void)labels[1]; }), 340);
    EXPECT_EQ(failureOf([&] { (void)labels[-1]; }), 340);
    const auto& constant = labels;
    EXPECT_EQ(failureOf([&] { (void)constant[7]; }), 340);
}

TEST(ControlArray, TheFailureNamesTheIndex) {
    ControlArray<Label> labels;
    try {
        (void)labels[-3];
        FAIL() << "no failure";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.description(), "Control array element '-3' doesn't exist");
    }
}

TEST(ControlArray, LoadingTwiceFails) {
    ControlArray<Label> labels;
    labels.Load(1);
    EXPECT_EQ(failureOf([&] { labels.Load(1); }), 360);
    EXPECT_EQ(failureOf([&] { labels.Load(0); }), 360);
}

TEST(ControlArray, LoadingBeyondTheNextIndexFails) {
    ControlArray<Label> labels;
    EXPECT_EQ(failureOf([&] { labels.Load(2); }), 340);
    EXPECT_EQ(labels.UBound(), 0);
}

TEST(ControlArray, UnloadAboveKeepsTheTemplate) {
    ControlArray<Label> labels;
    for (int index = 1; index <= 3; ++index) labels.Load(index);
    labels.UnloadAbove(2);
    EXPECT_EQ(labels.UBound(), 2);
    labels.UnloadAbove(-1);
    EXPECT_EQ(labels.UBound(), 0);
}

TEST(ControlArray, AReferenceStaysGoodWhileElementsAreAdded) {
    ControlArray<Label> labels;
    Label& first = labels.Load(1);
    for (int index = 2; index <= 600; ++index) labels.Load(index);
    EXPECT_EQ(&first, &labels[1]);
}

} // namespace
} // namespace toolkit
