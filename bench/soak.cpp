// Whether the program keeps memory over hours of work: 10,000 zooms, 1,000 saves and opens and 500
// prints in one process, in rounds. Tells what is in use after the first tenth and at the end, and
// fails where that has grown by more than two percent.
//
//   build/release/bench/soak [rounds]
#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench_program.h"
#include "monkey/heap.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/application.h"
#include "toolkit/window/dialog_answers.h"

namespace {

constexpr int usualRounds = 1000;

class Soak {
  public:
    Soak() {
        toolkit::answerDialogsWith(
            {.message = [](const toolkit::MessageBox&) { return toolkit::Answer::No; },
             .input = {},
             .popup = {},
             .file =
                 [this](const toolkit::FileQuestion&) {
                     return program_.form.DataFolder / "page.pdf";
                 }});
        program_.openFullCard();
    }

    /// 10 zooms, a change that is saved, the card opened anew, and every other time a print.
    void runRound(int round) {
        for (int i = 0; i < 10; ++i) {
            toolkit::test::typeKey(i < 5 ? toolkit::key::minus : toolkit::key::plus,
                                   toolkit::shift::ctrl);
            toolkit::test::endEvent();
        }
        zev::Zevlin& form = program_.form;
        const auto& mark = form.AMark[1 + round % form.AMark.UBound()];
        toolkit::test::click(mark.Left + mark.Width / 3, mark.Top + mark.Height / 2);
        choose("File>Save");
        choose("File>New");
        form.CardName = "Full";
        zev::GetCardFile(form);
        toolkit::test::settle();
        if (round % 2 == 0) choose("File>Print card");
    }

  private:
    static void choose(const char* item) {
        if (!toolkit::test::chooseMenu(item)) {
            std::fprintf(stderr, "%s can't be chosen\n", item);
            std::exit(EXIT_FAILURE);
        }
        toolkit::test::endEvent();
    }

    bench::Program program_;
};

struct Memory {
    std::size_t resident = 0;
    std::size_t heap = 0;
};

Memory memoryNow(int round) {
    const Memory memory{test_system::residentMemory(), test_system::heapInUse()};
    std::printf("round %d: resident %zu bytes, heap in use %zu bytes\n", round, memory.resident,
                memory.heap);
    std::fflush(stdout);
    return memory;
}

double growth(const char* name, std::size_t before, std::size_t after) {
    const double percent = (static_cast<double>(after) / static_cast<double>(before) - 1) * 100;
    std::printf("%s: %+.2f %%\n", name, percent);
    return percent;
}

} // namespace

int main(int argumentCount, char** arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const toolkit::Application application(argumentCount, arguments);
    const int rounds = argumentCount > 1 ? std::stoi(arguments[1]) : usualRounds;
    constexpr int parts = 10;
    constexpr double most = 2;
    Soak soak;
    Memory early;
    Memory last;
    for (int round = 1; round <= rounds; ++round) {
        soak.runRound(round);
        if (round % (rounds / parts) != 0) continue;
        last = memoryNow(round);
        if (round == rounds / parts) early = last;
    }
    const double resident = growth("resident", early.resident, last.resident);
    const double heap = growth("heap in use", early.heap, last.heap);
    return resident <= most && heap <= most ? EXIT_SUCCESS : EXIT_FAILURE;
}
