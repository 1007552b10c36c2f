// What the real form costs on the offscreen platform, each beside the bare work it can't avoid.
#include <benchmark/benchmark.h>

#include "bench_program.h"
#include "card/lifecycle.h"
#include "design/auto_adjust.h"
#include "design/design_mode.h"
#include "events/edit_field.h"
#include "text/set_sym.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/application.h"
#include "view/rebuild.h"
#include "view/zoom.h"

namespace {

using bench::Program;

void loadFullCard(benchmark::State& state) {
    Program program;
    program.writeFullCard("Full");
    for (auto _ : state) {
        state.PauseTiming();
        program.form.CardModified = false;
        zev::MNew_Click(program.form);
        program.form.CardName = "Full";
        state.ResumeTiming();
        zev::GetCardFile(program.form);
    }
}
BENCHMARK(loadFullCard)->Unit(benchmark::kMillisecond);

/// A key pressed and released in a field full of text, fitted and painted.
void keyInFullField(benchmark::State& state) {
    Program program;
    auto& form = program.form;
    zev::AText_Click(form, 1);
    toolkit::test::typeText("2/1 game forcing, inverted minors, Drury, Smolen, Texas");
    for (auto _ : state) {
        toolkit::test::typeText("x");
        toolkit::test::settle();
        state.PauseTiming();
        toolkit::test::typeKey(8);
        toolkit::test::settle();
        state.ResumeTiming();
    }
}
BENCHMARK(keyInFullField)->Unit(benchmark::kMicrosecond);

/// All fields of the card at its design size (5) and at full size (11).
void autoAdjust(benchmark::State& state) {
    Program program;
    auto& form = program.form;
    while (form.ZoomLevel < state.range(0)) zev::MZoomIn_Click(form);
    zev::MShowShapes_Click(form);
    for (auto _ : state) zev::MAutoAdjust_Click(form);
}
BENCHMARK(autoAdjust)->Arg(5)->Arg(11)->Unit(benchmark::kMillisecond);

/// One field with a symbol, laid out while the card holds this many symbols already.
void setSymAmong(benchmark::State& state) {
    Program program;
    auto& form = program.form;
    const auto symbols = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        zev::unloadSymbols(form);
        for (int i = 0; i < symbols; ++i) {
            form.AText[2].Caption = "^h";
            zev::SetSym(form, 2);
        }
        form.AText[1].Caption = "2^h";
        state.ResumeTiming();
        zev::SetSym(form, 1);
    }
}
BENCHMARK(setSymAmong)->Arg(5)->Arg(500)->Unit(benchmark::kMicrosecond)->Iterations(200);

/// At a step of the zoom.
void paintFullCard(benchmark::State& state) {
    Program program;
    program.openFullCard();
    program.form.ZoomLevel = static_cast<std::int16_t>(state.range(0));
    zev::RebuildScreenImage(program.form);
    toolkit::test::settle();
    for (auto _ : state) benchmark::DoNotOptimize(toolkit::test::grabCard());
}
BENCHMARK(paintFullCard)->Arg(1)->Arg(4)->Arg(5)->Arg(11)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    benchmark::Initialize(&argumentCount, arguments);
    const toolkit::Application application(argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
