#include "form/field_values.h"

#include "support/form_test.h"

namespace zev::test {
namespace {

class FieldValues : public FormTest {};

TEST_F(FieldValues, TwoIsRedThreeIsBlueAndAllElseBlack) {
    form.ColorRed = 11;
    form.ColorBlue = 12;
    EXPECT_EQ(fieldColor(form, 2), 11U);
    EXPECT_EQ(fieldColor(form, 3), 12U);
    for (const int code : {1, 0, -1, 4}) EXPECT_EQ(fieldColor(form, code), toolkit::black) << code;
}

TEST_F(FieldValues, ACellOutsideTheFieldsIsASubscriptOutOfRange) {
    std::vector<std::int16_t> cells(3);
    cellOf(cells, 2) = 5;
    EXPECT_EQ(cells[2], 5);
    for (const int index : {-1, 3}) {
        try {
            cellOf(cells, index) = 1;
            ADD_FAILURE() << index;
        } catch (const toolkit::RunTimeError& failure) {
            EXPECT_EQ(failure.number(), 9);
        }
    }
}

} // namespace
} // namespace zev::test
