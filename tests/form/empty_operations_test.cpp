#include "card/document.h"
#include "card/write_card.h"
#include "form/empty_operations.h"
#include "support/form_test.h"

namespace zev::test {
namespace {

class EmptyOperations : public FormTest {};

TEST_F(EmptyOperations, ChangeNothing) {
    start();
    clickMark(1);
    const auto card = zev::writeCard(documentOf(form));
    const auto picture = form.P1.Picture;
    form.Trace.clear();
    for (const auto operation : {DiReSize, Flatten, Flatten2, SetTabSequence}) operation(form);
    EXPECT_TRUE(form.Trace.empty());
    EXPECT_FALSE(form.Printing);
    EXPECT_EQ(zev::writeCard(documentOf(form)), card);
    EXPECT_EQ(form.P1.Picture, picture);
}

} // namespace
} // namespace zev::test
