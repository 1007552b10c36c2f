// Files that are dragged over the window: what the pointer shows, and what is dropped.
#include "toolkit/testing/test_drop.h"

#include <fstream>

#include "fixture.h"
#include "support/temporary_folder.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/program.h"

namespace window_test {
namespace {

using namespace toolkit;
using test::DragAnswer;
namespace fs = std::filesystem;

class FileDrop : public WindowTest {
  protected:
    FileDrop() {
        form.TakesFile = [this] { return takes; };
        form.FileDropped = [this](const fs::path& file) { note(file.filename().string()); };
    }

    [[nodiscard]] fs::path makeFile(const std::string& name) const {
        std::ofstream(folder / name) << "content";
        return folder / name;
    }

    const test::TemporaryFolder folder;
    bool takes = true;
};

TEST_F(FileDrop, IsTakenAsACopyAndHandedOver) {
    const fs::path file = makeFile("100% Jones & Smith.zev");
    EXPECT_EQ(test::dragOver({.files = {file}}), DragAnswer::Copied);
    EXPECT_TRUE(log.empty());
    EXPECT_TRUE(test::drop({.files = {file}}));
    EXPECT_EQ(log, (Log{"100% Jones & Smith.zev"}));
    EXPECT_TRUE(fs::exists(file));
}

TEST_F(FileDrop, OfSeveralFilesHandsOverTheFirst) {
    EXPECT_TRUE(test::drop({.files = {folder.path(), makeFile("a.zev"), makeFile("b.zev")},
                            .addresses = {"http://a.example/c.zev"}}));
    EXPECT_EQ(log, (Log{"a.zev"}));
}

TEST_F(FileDrop, RefusesWhatIsNoFileOfThisMachine) {
    EXPECT_EQ(test::dragOver({.text = "two clubs"}), DragAnswer::Refused);
    EXPECT_EQ(test::dragOver({.text = (makeFile("a.zev")).string()}), DragAnswer::Refused);
    EXPECT_EQ(test::dragOver({.files = {folder.path()}}), DragAnswer::Refused);
    EXPECT_EQ(test::dragOver({.files = {folder / "gone.zev"}}), DragAnswer::Refused);
    EXPECT_EQ(test::dragOver({.addresses = {"http://a.example/Jones.zev"}}), DragAnswer::Refused);
    EXPECT_FALSE(test::drop({.text = "two clubs"}));
    EXPECT_TRUE(log.empty());
}

TEST_F(FileDrop, RefusesAFileThatWouldBeMovedAway) {
    EXPECT_EQ(test::dragOver({.files = {makeFile("a.zev")}, .isOnlyMoved = true}),
              DragAnswer::Refused);
}

TEST_F(FileDrop, IsRefusedWhereTheFormTakesNone) {
    takes = false;
    const fs::path file = makeFile("a.zev");
    EXPECT_EQ(test::dragOver({.files = {file}}), DragAnswer::Refused);
    takes = true;
    form.TakesFile = {};
    EXPECT_FALSE(test::drop({.files = {file}}));
    EXPECT_TRUE(log.empty());
}

TEST_F(FileDrop, IsRefusedWhileAProcedureIsAtWork) {
    const fs::path file = makeFile("a.zev");
    DragAnswer answer = DragAnswer::Other;
    card.Click = [&] { answer = test::dragOver({.files = {file}}); };
    test::click(px(30), px(40));
    EXPECT_EQ(answer, DragAnswer::Refused);
    EXPECT_EQ(test::dragOver({.files = {file}}), DragAnswer::Copied);
}

TEST_F(FileDrop, IsTakenWhileAProcedureWaitsForThePlayer) {
    const fs::path file = makeFile("a.zev");
    overrideProgram({.player = [&] { test::drop({.files = {file}}); }});
    card.Click = [&] { waitForPlayer([this] { return times("a.zev") > 0; }); };
    test::click(px(30), px(40));
    EXPECT_EQ(times("a.zev"), 1);
}

TEST_F(FileDrop, OverAnOpenBoxIsTheWindowsToTake) {
    box.Visible = true;
    form.SetFocus(box);
    EXPECT_TRUE(test::drop({.files = {makeFile("a.zev")}}));
    EXPECT_EQ(times("a.zev"), 1);
    EXPECT_EQ(box.Text, "");
}

} // namespace
} // namespace window_test
