#include "layout/read_comment.h"

#include "support/form_test.h"

namespace zev::test {
namespace {

class ReadComment : public FormTest {};

TEST_F(ReadComment, KeepsTheVersionOnTheFormAndStopsBeforeTheData) {
    toolkit::TextInput input("' Program version:  1.0.181 \r\n\r\n   \r\n5,6\r\n");
    EXPECT_FALSE(SkipComment(form, input));
    EXPECT_EQ(form.VersionSeen, "1.0.181");
    EXPECT_EQ(input.readInteger(), 5);
}

TEST_F(ReadComment, TellsTheEndOfTheFile) {
    toolkit::TextInput input("' a comment\r\n\r\n");
    form.VersionSeen = "kept";
    EXPECT_TRUE(SkipComment(form, input));
    EXPECT_EQ(form.VersionSeen, "kept");
    EXPECT_TRUE(SkipComment(form, input));
}

TEST_F(ReadComment, TakesALineOfATabForData) {
    toolkit::TextInput input("\t\r\n5\r\n");
    EXPECT_FALSE(SkipComment(form, input));
    EXPECT_EQ(input.position(), 0U);
}

} // namespace
} // namespace zev::test
