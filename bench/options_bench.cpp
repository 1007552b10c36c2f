// What the chooser, the colours and the whole-card options cost on a full card, from the command to
// what it has painted.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "bench_program.h"
#include "card/chooser.h"
#include "toolkit/base/key.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/application.h"
#include "toolkit/window/shell_folders.h"
#include "view/color_panel.h"
#include "view/text_options.h"
#include "view/zoom.h"

namespace {

using bench::Program;
using Clock = std::chrono::steady_clock;

template <typename Work>
double secondsOf(Work work) {
    const auto start = Clock::now();
    work();
    toolkit::test::settle();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// The middle one: a machine that does other things too spoils the mean.
double median(std::vector<double> figures) {
    std::ranges::sort(figures);
    return figures.empty() ? 0 : figures[figures.size() / 2];
}

/// A change of the font size beside a zoom step to and fro, in the same run.
void fontSizeBesideAZoomStep(benchmark::State& state) {
    Program program;
    program.openFullCard();
    auto& form = program.form;
    std::vector<double> sizes;
    std::vector<double> zooms;
    for (auto _ : state) {
        zooms.push_back(secondsOf([&] { zev::MZoomIn_Click(form); }));
        zooms.push_back(secondsOf([&] { zev::MZoomOut_Click(form); }));
        sizes.push_back(secondsOf([&] { zev::mBigTextFont_Click(form); }));
        state.SetIterationTime(sizes.back());
    }
    state.counters["size_ms"] = median(sizes) * 1000;
    state.counters["zoom_ms"] = median(zooms) * 1000;
    state.counters["ratio"] = median(sizes) / median(zooms);
}
BENCHMARK(fontSizeBesideAZoomStep)->UseManualTime()->Unit(benchmark::kMillisecond);

void measureOption(benchmark::State& state, void (*procedure)(zev::Zevlin&)) {
    Program program;
    program.openFullCard();
    const int paints = toolkit::test::cardPaints().paints;
    for (auto _ : state) state.SetIterationTime(secondsOf([&] { procedure(program.form); }));
    state.counters["paints"] = benchmark::Counter(toolkit::test::cardPaints().paints - paints,
                                                  benchmark::Counter::kAvgIterations);
}
BENCHMARK_CAPTURE(measureOption, boldface, zev::mBold_Click)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(measureOption, leftJustify, zev::mLeftJustify_Click)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// OK in the panel, with another colour each time.
void colorChange(benchmark::State& state) {
    Program program;
    program.openFullCard();
    auto& form = program.form;
    int paints = 0;
    for (auto _ : state) {
        zev::mColorScheme_Click(form, 1);
        zev::ColorSample_Click(form, form.ColorLabel.BackColor == toolkit::rgb(0, 0, 128) ? 2 : 1);
        toolkit::test::settle();
        const int before = toolkit::test::cardPaints().paints;
        state.SetIterationTime(secondsOf([&] { zev::ColorBut_Click(form, 0); }));
        paints += toolkit::test::cardPaints().paints - before;
    }
    state.counters["paints"] = benchmark::Counter(paints, benchmark::Counter::kAvgIterations);
}
BENCHMARK(colorChange)->UseManualTime()->Unit(benchmark::kMillisecond);

/// One step of a slider by key, with the sample painted.
void sliderStep(benchmark::State& state) {
    Program program;
    zev::mColorScheme_Click(program.form, 1);
    toolkit::test::settle();
    bool up = false;
    for (auto _ : state) {
        up = !up;
        toolkit::test::typeKey(up ? toolkit::key::right : toolkit::key::left);
        toolkit::test::settle();
    }
}
BENCHMARK(sliderStep)->Unit(benchmark::kMillisecond)->UseRealTime();

void writeCards(const Program& program, int count) {
    for (int i = 0; i < count; ++i)
        toolkit::writeFile(program.form.DataFolder / ("Card " + std::to_string(i) + ".zev"), "x");
}

/// Lets the player act in the chooser once, then leave it.
void inChooser(Program& program, std::function<void()> acts) {
    toolkit::overrideProgram({.programFolder = ZEVLIN_CARD_FOLDER, .player = [&] {
                                  acts();
                                  program.form.ChooserCancelled = true;
                              }});
    benchmark::DoNotOptimize(zev::GetFileNames(program.form));
    toolkit::test::settle();
}

/// From the command to the painted panel, with so many cards in the folder.
void openChooser(benchmark::State& state) {
    Program program;
    writeCards(program, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const auto start = Clock::now();
        inChooser(program, [&] {
            toolkit::test::settle();
            state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        });
    }
}
BENCHMARK(openChooser)->Arg(10)->Arg(5000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A page down in a list of so many cards, painted.
void walkChooser(benchmark::State& state) {
    Program program;
    writeCards(program, static_cast<int>(state.range(0)));
    inChooser(program, [&] {
        for (auto _ : state) {
            if (program.form.FileList.ListIndex + 1 ==
                static_cast<int>(program.form.FileList.List.size()))
                program.form.FileList.ListIndex = -1;
            toolkit::test::typeKey(toolkit::key::pageDown);
            toolkit::test::settle();
        }
    });
}
BENCHMARK(walkChooser)->Arg(10)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argumentCount, char** arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    benchmark::Initialize(&argumentCount, arguments);
    const toolkit::Application application(argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
