#include "design/design_field.h"

#include "design/design_test.h"

namespace zev::test {
namespace {

class DesignFields : public DesignTest {};

TEST_F(DesignFields, AFieldIsALabelOfItsKind) {
    start();
    EXPECT_EQ(&labelOf(form, {FieldKind::Mark, 2}), &form.AMark[2]);
    EXPECT_EQ(&labelOf(form, {FieldKind::Text, 2}), &form.AText[2]);
    EXPECT_EQ(&colorsOf(form, FieldKind::Mark), &form.MarkColors);
    EXPECT_EQ(&colorsOf(form, FieldKind::Text), &form.TextColors);
}

TEST_F(DesignFields, OneThatDoesNotExistIsAFailure) {
    start();
    EXPECT_THROW(static_cast<void>(labelOf(form, {FieldKind::Mark, 5})), toolkit::RunTimeError);
}

TEST_F(DesignFields, TheReadOutTellsNumberCornersAndSize) {
    start();
    form.AText[2].Move(1500, 6000, 4500, 240);
    showReadOut(form, {FieldKind::Text, 2});
    EXPECT_EQ(form.MCoord.Caption, "2: (1500,6000) - (6000,6240)  [4500*240]");
}

TEST_F(DesignFields, TheReadOutTellsWholeTwips) {
    start();
    form.AText[2].Move(1500.25F, 6000.75F, 4500.5F, 240);
    showReadOut(form, {FieldKind::Text, 2});
    EXPECT_EQ(form.MCoord.Caption, "2: (1500,6001) - (6001,6241)  [4500*240]");
}

} // namespace
} // namespace zev::test
