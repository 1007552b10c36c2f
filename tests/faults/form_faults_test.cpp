// What a player does, with every operation on files failing once.
#include "faults/fault_test.h"
#include "faults/faults.h"
#include "output/export_card.h"
#include "toolkit/key.h"

namespace zev::test {
namespace {

using test_faults::Kind;

class FormFaults : public FaultTest {};

// The longest of them: fewer runs. An export is a print but for its end.
const std::vector<Kind> kindsForPrinting = {Kind::DiskStaysFull, Kind::Refused, Kind::Fails,
                                            Kind::FolderGone};

TEST_F(FormFaults, StartingUp) {
    runWithEveryFault([&] { start(); }, {Kind::DiskFull, Kind::DiskStaysFull, Kind::Refused,
                                         Kind::Fails, Kind::FolderGone});
}

// What looks like a first run overwrites the settings that are there again.
TEST_F(FormFaults, DISABLED_StartingUpWhileTheFolderComesBack) {
    runWithEveryFault([&] { start(); }, {Kind::FolderComesBack});
}

TEST_F(FormFaults, Saving) {
    startWithChangedCard();
    runWithEveryFault([&] { choose("File>Save"); });
}

TEST_F(FormFaults, SavingUnderAnotherName) {
    startWithChangedCard();
    runWithEveryFault([&] {
        answerName("Smith");
        choose("File>Save As...");
    });
}

TEST_F(FormFaults, DISABLED_Zooming) {
    startWithChangedCard();
    runWithEveryFault([&] { toolkit::test::typeKey(toolkit::key::minus, toolkit::shift::ctrl); });
}

TEST_F(FormFaults, DISABLED_PrintingToAFile) {
    startWithChangedCard();
    countsLooks = false;
    form.mPrintAlt.Checked = true; // half the size: enough here
    fileAnswer = home / "page.pdf";
    runWithEveryFault([&] { choose("File>Print card"); }, kindsForPrinting);
}

TEST_F(FormFaults, DISABLED_ExportingAPicture) {
    startWithChangedCard();
    countsLooks = false;
    form.mPrintAlt.Checked = true;
    inputAnswer = "picture.bmp";
    runWithEveryFault([&] { mPrintToDisk_Click(form); }, {Kind::DiskStaysFull, Kind::FolderGone});
}

TEST_F(FormFaults, DISABLED_ChangingAnOption) {
    startWithChangedCard();
    runWithEveryFault([&] { choose("Options>Fill-in Checkmarks"); });
}

TEST_F(FormFaults, SavingTheDesign) {
    start();
    toolkit::test::typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
    ASSERT_TRUE(form.MShowShapes.Checked);
    form.AMark[2].Left += 10 * pixel;
    runWithEveryFault([&] { choose("Design>Save Design"); });
}

class FormPowerCut : public FaultTest {};

TEST_F(FormPowerCut, Saving) {
    startWithChangedCard();
    runWithEveryCut([&] { choose("File>Save"); });
}

TEST_F(FormPowerCut, Zooming) {
    startWithChangedCard();
    runWithEveryCut([&] { toolkit::test::typeKey(toolkit::key::minus, toolkit::shift::ctrl); });
}

TEST_F(FormPowerCut, SavingTheDesign) {
    start();
    toolkit::test::typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
    ASSERT_TRUE(form.MShowShapes.Checked);
    form.AMark[2].Left += 10 * pixel;
    runWithEveryCut([&] { choose("Design>Save Design"); });
}

} // namespace
} // namespace zev::test
