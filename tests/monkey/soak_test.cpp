// The program may run for hours: what it does again and again must not take ever more memory. The
// benchmark "soak" runs longer.
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "monkey/heap.h"
#include "monkey/small_card.h"
#include "support/form_test.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/key.h"
#include "toolkit/base/write_file.h"
#include "toolkit/picture/gif_file.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class Soak : public FormTest {
  protected:
    /// Half a walk down the ladder of sizes and back.
    void zoom(int steps) {
        for (int i = 0; i < steps; ++i) {
            toolkit::test::typeKey(i % 10 < 5 ? toolkit::key::minus : toolkit::key::plus,
                                   toolkit::shift::ctrl);
            toolkit::test::endEvent();
        }
    }
    void saveAndOpen(int times) {
        for (int i = 0; i < times; ++i) {
            clickMark(1 + i % 5);
            choose("File>Save");
            answerChooser([this] {
                const auto point = toolkit::test::pointOnRow(form.FileList, 0);
                toolkit::test::doubleClick(point.x, point.y);
            });
            choose("File>Open...");
        }
    }
    void print(int times) {
        for (int i = 0; i < times; ++i) {
            answerFile(home / "page.pdf");
            choose("File>Print card");
        }
    }
    /// Does everything this many times.
    void work(int times) {
        zoom(20 * times);
        saveAndOpen(3 * times);
        print(times);
        // The test's own notes.
        fileQuestions = {};
        choosers = {};
    }
    static void choose(std::string_view item) {
        EXPECT_TRUE(toolkit::test::chooseMenu(item));
        toolkit::test::endEvent();
    }
};

TEST_F(Soak, NothingThatIsDoneOverAndOverKeepsMemory) {
    toolkit::overrideClock(1795000000);
    writeOptions("Zoom=9\r\n");
    writeLayout(smallCard());
    toolkit::writeFile(dataFile("Convention card.gif"), toolkit::gifFile(smallPicture()));
    start();
    clickText(3);
    toolkit::test::typeText("2^h & more");
    answerName("Jones");
    choose("File>Save");
    // Rounds in which the program makes what it makes only once: each sign at each size, pictures,
    // the lines of the trace.
    constexpr int warmUp = 2;
    constexpr int rounds = 15;
    for (int i = 0; i < warmUp; ++i) work(2);
    const std::size_t before = test_system::heapInUse();
    work(rounds);
    const std::size_t after = test_system::heapInUse();
    // The trace and the record of boxes vary in size; a field that leaked at each zoom would be
    // more than this.
    constexpr std::size_t tolerance = 32768;
    EXPECT_LE(after, before + tolerance) << "of " << before;
}

} // namespace
} // namespace zev::test
