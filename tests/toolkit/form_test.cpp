#include "toolkit/model/form.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

// Three controls that write down their focus events in one line.
struct FocusScene {
    Form form;
    Control card;
    Control box;
    Control other;
    std::string events;

    FocusScene() {
        listen(card, "card");
        listen(box, "box");
        listen(other, "other");
    }
    void listen(Control& control, const std::string& name) {
        control.GotFocus = [this, name] { events += "+" + name + " "; };
        control.LostFocus = [this, name] { events += "-" + name + " "; };
    }
};

TEST(Form, FocusIsLostBeforeItIsGot) {
    FocusScene scene;
    scene.form.SetFocus(scene.card);
    scene.form.SetFocus(scene.box);
    EXPECT_EQ(scene.events, "+card -card +box ");
    EXPECT_EQ(scene.form.ActiveControl, &scene.box);
}

TEST(Form, AControlThatHasTheFocusGetsNoEvent) {
    FocusScene scene;
    scene.form.SetFocus(scene.box);
    scene.form.SetFocus(scene.box);
    EXPECT_EQ(scene.events, "+box ");
}

TEST(Form, TheFocusHasMovedWhenLostFocusRuns) {
    FocusScene scene;
    scene.form.SetFocus(scene.box);
    const Control* active = nullptr;
    scene.box.LostFocus = [&] { active = scene.form.ActiveControl; };
    scene.form.SetFocus(scene.card);
    EXPECT_EQ(active, &scene.card);
}

TEST(Form, AFocusMovedOnByLostFocusStaysThere) {
    FocusScene scene;
    scene.form.SetFocus(scene.box);
    scene.box.LostFocus = [&] { scene.form.SetFocus(scene.other); };
    scene.events.clear();
    scene.form.SetFocus(scene.card);
    EXPECT_EQ(scene.form.ActiveControl, &scene.other);
    EXPECT_EQ(scene.events, "-card +other ");
}

TEST(Form, ControlsWithoutHandlersTakeTheFocus) {
    Form form;
    Control one;
    Control two;
    form.SetFocus(one);
    form.SetFocus(two);
    EXPECT_EQ(form.ActiveControl, &two);
}

TEST(Form, ScaleIsTheFrameLessItsBorders) {
    Form form;
    form.Width = 1000;
    form.Height = 900;
    form.FrameWidth = 60;
    form.FrameHeight = 400;
    EXPECT_EQ(form.ScaleWidth(), 940);
    EXPECT_EQ(form.ScaleHeight(), 500);
}

TEST(Stacking, TheLastBroughtToFrontIsInFrontOfAll) {
    Stacking stacking;
    Label back;
    Label middle;
    Label front;
    stacking.bringToFront(middle);
    stacking.bringToFront(front);
    stacking.sendToBack(back);
    EXPECT_LT(back.Stack, middle.Stack);
    EXPECT_LT(middle.Stack, front.Stack);
    stacking.sendToBack(front);
    EXPECT_LT(front.Stack, back.Stack);
}

} // namespace
} // namespace toolkit
