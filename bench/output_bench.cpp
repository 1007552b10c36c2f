// What an export and a print cost from the command to the file with the screen restored, beside the
// bare work that any program would have: painting the card at full scale, halving it and encoding a
// 32-bit PNG. A print is held to the same figure, though its page holds the picture at full scale,
// four times the pixels; encoding all of those takes the library three times as long ("fullPng").
#include <benchmark/benchmark.h>

#include "bench_program.h"
#include "output/export_card.h"
#include "output/print_card.h"
#include "toolkit/base/system.h"
#include "toolkit/picture/bitmap_file.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/application.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/flattened_card.h"
#include "view/halve_picture.h"
#include "view/rebuild.h"

namespace {

using bench::Program;

const std::filesystem::path folder = std::filesystem::temp_directory_path();

void answerWith(const std::string& image, const std::filesystem::path& page) {
    toolkit::answerDialogsWith(
        {.message = [](const toolkit::MessageBox&) { return toolkit::Answer::No; },
         .input = [image](const toolkit::InputBox&) { return image; },
         .popup = {},
         .file = [page](const toolkit::FileQuestion&) { return page; }});
}

/// The run and how far the memory rose above what it was before.
template <typename Job>
void runJob(benchmark::State& state, const std::filesystem::path& file, Job job) {
    toolkit::overridePrinters({toolkit::printerNamed(toolkit::printToPdfName)});
    Program program;
    program.openFullCard();
    answerWith(file.string(), file);
    const auto idle = toolkit::memoryUsage().current;
    for (auto _ : state) {
        job(program.form);
        toolkit::test::settle();
    }
    const auto peak = toolkit::memoryUsage().peak;
    state.counters["MiB_above_idle"] = static_cast<double>(peak - idle) / (1 << 20);
    state.counters["KiB_of_file"] =
        static_cast<double>(std::filesystem::file_size(file)) / (1 << 10);
    std::filesystem::remove(file);
}

void exportToPng(benchmark::State& state) {
    runJob(state, folder / "zevlin-bench.png", zev::mPrintToDiskPNG_Click);
}
BENCHMARK(exportToPng)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void printToPdf(benchmark::State& state) {
    runJob(state, folder / "zevlin-bench.pdf", zev::MPrint_Click);
}
BENCHMARK(printToPdf)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void bareWork(benchmark::State& state) {
    Program program;
    program.openFullCard();
    program.form.ZoomLevel = 11;
    zev::RebuildScreenImage(program.form);
    const auto file = folder / "zevlin-bench-bare.png";
    for (auto _ : state) {
        toolkit::PictureBox card = program.form.P1;
        toolkit::flatten(card);
        toolkit::savePng(zev::halved(*card.Picture), file);
    }
    std::filesystem::remove(file);
}
BENCHMARK(bareWork)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

/// What a print would cost that gave the card's full picture to the library.
void fullPng(benchmark::State& state) {
    Program program;
    program.openFullCard();
    program.form.ZoomLevel = 11;
    zev::RebuildScreenImage(program.form);
    const auto file = folder / "zevlin-bench-full.png";
    for (auto _ : state) {
        toolkit::PictureBox card = program.form.P1;
        toolkit::flatten(card);
        toolkit::savePng(*card.Picture, file);
    }
    std::filesystem::remove(file);
}
BENCHMARK(fullPng)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

} // namespace

int main(int argumentCount, char** arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    benchmark::Initialize(&argumentCount, arguments);
    const toolkit::Application application(argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
