// The screens and their bar.
#include "fixture.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_boxes.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/cursor.h"
#include "toolkit/window/popup_menu.h"
#include "toolkit/window/screen.h"

namespace window_test {
namespace {

using namespace toolkit;

class ScreenTest : public WindowTest {};

TEST_F(ScreenTest, ScreenIsMeasuredInTwips) {
    const Screen found = screen();
    EXPECT_GT(found.Width, px(300));
    EXPECT_EQ(found.TwipsPerPixelX, px(1));
    overrideScreen({.width = 1000, .height = 800});
    EXPECT_EQ(screen().Width, 1000);
    EXPECT_EQ(screen().Height, 800);
}

TEST_F(ScreenTest, TaskBarForTestsIsGiven) {
    overrideScreen({.taskBar = {0, 570, 800, 30}, .hasTaskBar = true});
    EXPECT_EQ(taskBar().Top, 570);
    EXPECT_EQ(taskBar().Height, 30);
}

/// The form is taken to the second screen, which begins 800 to the right and 100 down.
class SecondScreen : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        test::shiftWindow(850, 90);
        test::moveMouse(px(5), px(5));
        log.clear();
    }
};

TEST_F(SecondScreen, SizeIsThatOfTheScreenThatHoldsTheFormsCentre) {
    EXPECT_EQ(screen().Width, px(1000));
    EXPECT_EQ(screen().Height, px(700));
    test::shiftWindow(-850, -90);
    EXPECT_EQ(screen().Width, px(800));
    EXPECT_EQ(screen().Height, px(800));
}

TEST_F(SecondScreen, PlaceOfTheFormIsRelativeToIt) {
    EXPECT_EQ(form.Left, px(50 + 850 - 800));
    EXPECT_EQ(form.Top, px(60 + 90 - 100));
    form.Left = px(30);
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Left, px(30));
    EXPECT_EQ(screen().Width, px(1000));
    test::shiftWindow(-600, 0);
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Left, px(30 + 800 - 600));
}

TEST_F(SecondScreen, CursorIsToldAndSetRelativeToIt) {
    const CursorPosition seen = cursorPosition();
    EXPECT_EQ(px(seen.x), form.Left + form.FrameWidth / 2 + card.Left + px(5));
    setCursorPosition({17, 18});
    EXPECT_EQ(cursorPosition().x, 17);
    test::shiftWindow(-850, -90);
    EXPECT_EQ(cursorPosition().x, 817);
    EXPECT_EQ(cursorPosition().y, 118);
}

/// As main.cpp describes it.
constexpr test::ScreenArea secondScreen{.left = 800, .top = 100, .width = 1000, .height = 700};

/// What the window shows, with a card of one mark and one text.
class PartsOnTheSecondScreen : public SecondScreen {
  protected:
    PartsOnTheSecondScreen() {
        place(marks[1], 30, 40, 21, 23);
        place(texts[1], 60, 70, 81, 17);
        contents.labels = {&line};
        accessible.fieldCount = [] { return 2; };
        accessible.sections = [] {
            return std::vector<AccessibleSection>{
                {"Bids", {{mark, "Stayman"}, {openText, "Other bids"}}}};
        };
        accessible.label = [this](FieldId field) { return field == mark ? &marks[1] : &texts[1]; };
        accessible.name = [](FieldId field) { return field == mark ? "Stayman" : "Other bids"; };
        accessible.isSet = [](FieldId) { return false; };
        accessible.isWithinReach = [](FieldId) { return true; };
        accessible.text = [](FieldId) { return std::string(); };
        accessible.focused = [] { return openText; };
    }
    /// Relative to the inside of the form.
    [[nodiscard]] test::ScreenArea onForm(int left, int top, int width, int height) const {
        const auto frame = form.FrameWidth / 2;
        const auto bars = form.FrameHeight - frame;
        return {pixelsFromTwips(form.Left + frame) + secondScreen.left + left,
                pixelsFromTwips(form.Top + bars) + secondScreen.top + top, width, height};
    }
    static void expectAt(std::string_view name, const test::ScreenArea& area) {
        const test::ScreenArea seen = test::accessiblePart(name).area;
        EXPECT_EQ(seen.left, area.left) << name;
        EXPECT_EQ(seen.top, area.top) << name;
        EXPECT_EQ(seen.width, area.width) << name;
        EXPECT_EQ(seen.height, area.height) << name;
        EXPECT_TRUE(secondScreen.holds(seen)) << name;
    }

    PanelLabel line;

    static constexpr FieldId mark{FieldId::Kind::CheckBox, 1};
    static constexpr FieldId openText{FieldId::Kind::Text, 1};
};

TEST_F(PartsOnTheSecondScreen, FieldsLieThereForScreenReaders) {
    for (const int moved : {0, 35}) {
        card.Left = px(10 + moved);
        expectAt("Stayman", onForm(10 + moved + 30, 10 + 40, 21, 23));
        expectAt("Other bids", onForm(10 + moved + 60, 10 + 70, 81, 17));
        expectAt("Bids", onForm(10 + moved + 30, 10 + 40, 111, 47));
    }
    EXPECT_EQ(test::accessibleFieldAt({px(30 + 10), px(40 + 10)}), "Stayman");
}

TEST_F(PartsOnTheSecondScreen, ALabelOfAPanelLiesThereForScreenReaders) {
    line.Caption = "A line";
    line.Move(px(10), px(5), px(100), px(15));
    line.Visible = true;
    panel.Move(px(100), px(90), px(300), px(200));
    panel.Visible = true;
    expectAt("A line", onForm(100 + 10, 90 + 5, 100, 15));
}

TEST_F(PartsOnTheSecondScreen, WhatLiesOnTheFormGoesThereWithIt) {
    overlay.Move(px(100), px(100), px(81), px(41));
    overlay.Text = "Please wait";
    overlay.IsNotice = overlay.Visible = true;
    footNote.Text = "Written";
    footNote.Link = "Show in folder";
    footNote.Visible = true;
    openBox("typed");
    expectAt("Please wait", onForm(100, 100, 81, 41));
    for (const std::string_view name : {"Written", "Show in folder", "Other bids"})
        EXPECT_TRUE(secondScreen.holds(test::accessiblePart(name).area)) << name;
}

TEST_F(PartsOnTheSecondScreen, AMessageLiesOverTheForm) {
    const test::ScreenArea inside =
        onForm(0, 0, pixelsFromTwips(form.ScaleWidth()), pixelsFromTwips(form.ScaleHeight()));
    test::ShownBox seen;
    test::endNextBox(Answer::Ok, seen);
    tell("Done", Icon::None);
    EXPECT_TRUE(inside.holds(seen.area));
    test::fillNextInputBox("x", seen);
    EXPECT_EQ(ask({.prompt = "?", .title = "T"}), "x");
    EXPECT_TRUE(inside.holds(seen.area));
}

/// The window's left and upper part alone lie on the screen.
class CornerOfTheSecondScreen : public PartsOnTheSecondScreen {
  protected:
    void SetUp() override {
        PartsOnTheSecondScreen::SetUp();
        form.Left = px(1000 - 330);
        form.Top = px(700 - 250);
        window->update();
        test::settle();
    }
};

TEST_F(CornerOfTheSecondScreen, APopUpMenuStaysOnIt) {
    MenuItem bold{.Caption = "Boldface"};
    const std::vector<PopupRow> rows(6, PopupRow{.item = &bold});
    test::moveMouse(px(310), px(190));
    const CursorPosition pointer = cursorPosition();
    test::ScreenArea seen;
    test::chooseInNextPopup(0, seen);
    popupMenu(rows);
    EXPECT_TRUE(secondScreen.holds(seen));
    // It gives way to the screen's edges, and still is at the pointer.
    const int x = secondScreen.left + pointer.x;
    const int y = secondScreen.top + pointer.y;
    EXPECT_TRUE(seen.left < x && seen.left + seen.width >= x);
    EXPECT_TRUE(seen.top < y && seen.top + seen.height >= y);
}

TEST_F(CornerOfTheSecondScreen, AToolTipStaysOnIt) {
    list.Move(px(100), px(100), px(220), px(200));
    list.Font = {.Name = "Arial", .Size = 9};
    list.Elides = list.Visible = true;
    list.List = {std::string(50, 'm')};
    const auto point = test::PointOnCard{px(290), px(100)};
    EXPECT_EQ(test::toolTipAt(list, point), list.List.front());
    EXPECT_TRUE(secondScreen.holds(test::toolTipArea()));
}

/// Screens of other pixels than the first one's. Which picture the card shows is asked of what is
/// painted on the screen itself.
class FinerScreen : public ScreenTest {
  protected:
    FinerScreen() {
        card.Picture = std::make_shared<Bitmap>(400, 300, red);
        card.Sharp = {card.Picture, [this](float ratio) {
                          note("drawn for " + std::to_string(ratio));
                          const auto size = [ratio](int pixels) {
                              return static_cast<int>(static_cast<float>(pixels) * ratio);
                          };
                          return std::make_shared<Bitmap>(size(400), size(300), blue);
                      }};
    }
    void goTo(int left, int top) {
        test::shiftWindow(left - std::exchange(left_, left), top - std::exchange(top_, top));
    }

    static constexpr Color red = rgb(255, 0, 0);
    static constexpr Color blue = rgb(0, 0, 255);

  private:
    int left_ = 0;
    int top_ = 0;
};

TEST_F(FinerScreen, TheCardIsDrawnAnewInThePixelsOfEachScreen) {
    EXPECT_EQ(log, Log());
    goTo(20, 1020);
    EXPECT_EQ(log, Log{"drawn for 2.000000"});
    goTo(100, 1000);
    EXPECT_EQ(times("drawn for 2.000000"), 1) << "for each place anew";
    goTo(2020, 1020);
    EXPECT_EQ(times("drawn for 1.250000"), 1);
    goTo(0, 0);
    EXPECT_EQ(log.size(), 2U) << "for a screen that needs none";
    goTo(20, 1020);
    EXPECT_EQ(times("drawn for 2.000000"), 2);
    EXPECT_EQ(log.size(), 3U);
}

TEST_F(FinerScreen, TheWindowStaysWhereThePlayerTakesItThoughItsFrameIsFinerThere) {
    test::moveMouse(px(5), px(5));
    const float frame = form.FrameWidth;
    const float inside = form.ScaleWidth();
    goTo(20, 1020);
    // The platform keeps the place of what is inside.
    const float finerBy = (frame - form.FrameWidth) / 2;
    for (int event = 0; event < 3; ++event) {
        test::moveMouse(px(5), px(5));
        ASSERT_GT(finerBy, 0);
        EXPECT_EQ(form.Left, px(50 + 20) + finerBy);
        EXPECT_EQ(form.Top, px(60 + 20) + finerBy);
        EXPECT_EQ(form.ScaleWidth(), inside);
    }
    EXPECT_EQ(screen().Width, px(1000));
    EXPECT_EQ(screen().TwipsPerPixelX, px(1));
    EXPECT_EQ(px(cursorPosition().x), form.Left + form.FrameWidth / 2 + card.Left + px(5));
}

} // namespace
} // namespace window_test
