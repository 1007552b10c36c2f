#include "design/move_marks.h"

#include <vector>

#include "design/design_test.h"
#include "form/write_options.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
namespace key = toolkit::key;
namespace shift = toolkit::shift;

class MoveFields : public DesignTest {
  protected:
    using Places = std::vector<std::pair<float, float>>;

    [[nodiscard]] static Places placesOf(const toolkit::ControlArray<toolkit::Label>& fields) {
        Places places;
        for (int i = 1; i <= fields.UBound(); ++i)
            places.emplace_back(fields[i].Left, fields[i].Top);
        return places;
    }
};

TEST_F(MoveFields, ShiftAndAnArrowMoveTheCheckmarksByOnePixel) {
    design();
    const Places before = placesOf(form.AMark);
    const Places texts = placesOf(form.AText);
    typeKey(key::right, shift::shift);
    typeKey(key::down, shift::shift);
    for (int i = 1; i <= 3; ++i) {
        const auto& [left, top] = before[static_cast<std::size_t>(i) - 1];
        EXPECT_EQ(form.AMark[i].Left, left + pixel) << i;
        EXPECT_EQ(form.AMark[i].Top, top + pixel) << i;
    }
    EXPECT_EQ(form.AMark[4].Left, before[3].first);
    EXPECT_EQ(placesOf(form.AText), texts);
    EXPECT_TRUE(form.DesignDirty);
    EXPECT_TRUE(traced("MoveMarks"));
    typeKey(key::left, shift::shift);
    typeKey(key::up, shift::shift);
    EXPECT_EQ(placesOf(form.AMark), before);
}

TEST_F(MoveFields, CirclesMoveWithoutTheCheckmarks) {
    design();
    choose("Design>Circle");
    const Places before = placesOf(form.AMark);
    typeKey(key::right, shift::shift);
    EXPECT_EQ(form.AMark[4].Left, before[3].first + pixel);
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(form.AMark[i].Left, before[static_cast<std::size_t>(i) - 1].first) << i;
}

TEST_F(MoveFields, TextsMoveAllTogether) {
    design();
    choose("Design>Text");
    const Places marks = placesOf(form.AMark);
    const Places before = placesOf(form.AText);
    typeKey(key::up, shift::shift);
    for (int i = 1; i <= 4; ++i)
        EXPECT_EQ(form.AText[i].Top, before[static_cast<std::size_t>(i) - 1].second - pixel) << i;
    EXPECT_EQ(placesOf(form.AMark), marks);
}

TEST_F(MoveFields, FilledInSquaresAreCheckmarks) {
    writeOptions("Zoom=5\r\nFillincheckmarks=1\r\n");
    design();
    ASSERT_EQ(form.AMark[1].Caption, "n");
    const float before = form.AMark[1].Left;
    typeKey(key::right, shift::shift);
    EXPECT_EQ(form.AMark[1].Left, before + pixel);
    choose("Design>Circle");
    typeKey(key::right, shift::shift);
    EXPECT_EQ(form.AMark[1].Left, before + pixel);
}

TEST_F(MoveFields, ControlAndAnArrowStretchFromTheTopLeftCorner) {
    design();
    form.AMark[1].Move(3000, 10000);
    form.AMark[2].Move(6000, 1000);
    const float width = form.AMark[1].Width;
    typeKey(key::down, shift::ctrl);
    EXPECT_FLOAT_EQ(form.AMark[1].Top, 10010);
    EXPECT_FLOAT_EQ(form.AMark[2].Top, 1001);
    EXPECT_EQ(form.AMark[1].Left, 3000);
    EXPECT_EQ(form.AMark[1].Width, width);
    typeKey(key::right, shift::ctrl);
    EXPECT_FLOAT_EQ(form.AMark[1].Left, 3003);
    EXPECT_FLOAT_EQ(form.AMark[1].Top, 10010);
}

TEST_F(MoveFields, TheOppositeArrowSqueezes) {
    design();
    form.AMark[1].Move(3000, 10000);
    typeKey(key::left, shift::ctrl);
    EXPECT_FLOAT_EQ(form.AMark[1].Left, 2997);
    typeKey(key::up, shift::ctrl);
    EXPECT_FLOAT_EQ(form.AMark[1].Top, 9990);
    typeKey(key::down, shift::ctrl);
    EXPECT_NEAR(form.AMark[1].Top, 9999.99F, 0.01F);
}

TEST_F(MoveFields, ShiftAndControlTogetherMoveNothingButCountAsAChange) {
    design();
    const Places before = placesOf(form.AMark);
    typeKey(key::right, shift::shift | shift::ctrl);
    EXPECT_EQ(placesOf(form.AMark), before);
    EXPECT_TRUE(form.DesignDirty);
}

TEST_F(MoveFields, WithoutACheckedShapeNothingChanges) {
    design();
    form.MCheck.Checked = false;
    const Places before = placesOf(form.AMark);
    typeKey(key::right, shift::shift);
    EXPECT_EQ(placesOf(form.AMark), before);
    EXPECT_FALSE(form.DesignDirty);
    EXPECT_TRUE(traced("MoveMarks"));
}

TEST_F(MoveFields, UndoKnowsNothingOfIt) {
    design();
    const Places before = placesOf(form.AMark);
    typeKey(key::right, shift::shift);
    undo();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(form.AMark[1].Left, before[0].first + pixel);
}

TEST_F(MoveFields, OnANormalCardNothingMoves) {
    start();
    const Places before = placesOf(form.AMark);
    typeKey(key::right, shift::shift);
    typeKey(key::right, shift::ctrl);
    EXPECT_EQ(placesOf(form.AMark), before);
    EXPECT_FALSE(traced("MoveMarks"));
}

TEST_F(MoveFields, AHeldArrowGoesOn) {
    design();
    const float before = form.AMark[1].Left;
    pressKey(key::right, shift::shift);
    repeatKey(key::right, shift::shift);
    repeatKey(key::right, shift::shift);
    releaseKey(key::right, shift::shift);
    EXPECT_EQ(form.AMark[1].Left, before + 3 * pixel);
}

TEST_F(MoveFields, AnArrowAloneMovesTheCard) {
    design();
    const Places before = placesOf(form.AMark);
    typeKey(key::down);
    EXPECT_EQ(placesOf(form.AMark), before);
    EXPECT_FALSE(form.DesignDirty);
}

} // namespace
} // namespace zev::test
