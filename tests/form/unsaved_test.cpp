#include "form/unsaved.h"

#include "card/journal_fixture.h"
#include "support/immutable_folder.h"
#include "toolkit/base/files.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

/// The journal of a changed card.
class Unsaved : public JournalTest {};

TEST_F(Unsaved, GoesWhenTheCardIsSaved) {
    start();
    openCard("Jones", {});
    clickMark(2);
    toolkit::test::elapseAlarms();
    ASSERT_TRUE(isThere());
    choose("File>Save");
    EXPECT_FALSE(isThere());
    toolkit::test::elapseAlarms();
    EXPECT_FALSE(isThere());
}

TEST_F(Unsaved, ThatCantBeRemovedWhenTheCardIsSavedIsEmptied) {
    start();
    openCard("Jones", {});
    clickMark(2);
    toolkit::test::elapseAlarms();
    ASSERT_TRUE(isThere());
    {
        const test_system::ImmutableFolder immutable(home / "state");
        if (!immutable.isThere()) GTEST_SKIP() << "no file here can be made immutable";
        choose("File>Save");
        EXPECT_EQ(toolkit::readFile(file()), "");
        clickMark(1);
        toolkit::test::elapseAlarms();
        EXPECT_TRUE(content().document.marks[0]);
    }
    choose("File>Save");
    EXPECT_FALSE(isThere());
}

TEST_F(Unsaved, GoesWhenTheChangesAreGivenUpByAnswer) {
    start();
    clickMark(2);
    toolkit::test::elapseAlarms();
    ASSERT_TRUE(isThere());
    answer(toolkit::Answer::No);
    choose("File>New");
    EXPECT_FALSE(isThere());
}

TEST_F(Unsaved, IsWrittenAnewWhereTheSameIsDoneAfterItWasGivenUp) {
    start();
    clickMark(2);
    toolkit::test::elapseAlarms();
    answer(toolkit::Answer::No);
    choose("File>New");
    ASSERT_FALSE(isThere());
    clickMark(2);
    toolkit::test::elapseAlarms();
    ASSERT_TRUE(isThere());
    EXPECT_TRUE(content().document.marks[1]);
}

TEST_F(Unsaved, StaysWhenTheQuestionIsCancelled) {
    start();
    clickMark(2);
    toolkit::test::elapseAlarms();
    answer(toolkit::Answer::Cancel);
    choose("File>New");
    EXPECT_TRUE(isThere());
}

} // namespace
} // namespace zev::test
