// What zooming and dragging cost, each beside the bare work in the same run: the counter "ratio" is
// the program's time over the bare work's.
//
// Set QT_QPA_PLATFORM=xcb to paint on a real screen.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <QtCore/QCoreApplication>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

#include "bench_program.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/application.h"
#include "view/rebuild.h"
#include "view/zoom.h"

namespace {

using bench::Program;
using Clock = std::chrono::steady_clock;

/// What one piece of work took, on the clock and of all processors together.
struct Cost {
    double seconds = 0;
    double processor = 0;
};

template <typename Work>
Cost costOf(Work work) {
    const auto processor = std::clock();
    const auto start = Clock::now();
    work();
    return {std::chrono::duration<double>(Clock::now() - start).count(),
            static_cast<double>(std::clock() - processor) / CLOCKS_PER_SEC};
}

/// The middle one: a machine that does other things too spoils the mean.
double median(std::vector<Cost> costs, double Cost::*figure) {
    std::ranges::sort(costs, {}, figure);
    return costs.empty() ? 0 : costs[costs.size() / 2].*figure;
}

enum class FullSize { Scaled, AsItIs };

/// The card's picture at full size, as a program would keep it that only shows it.
class BarePicture : public QWidget {
  public:
    BarePicture()
        : full_(QImage(QStringLiteral(ZEVLIN_CARD_FOLDER "/card.gif"))
                    .convertToFormat(QImage::Format_RGB32)) {
        setAttribute(Qt::WA_OpaquePaintEvent);
        show();
    }
    /// Scales the full picture once and paints it once. At its own size Qt hands it out as it is;
    /// to be scaled it must lose a pixel each way.
    void showAt(double scale, FullSize fullSize = FullSize::Scaled) {
        const QSize size(qRound(full_.width() * scale), qRound(full_.height() * scale));
        const bool shorten = fullSize == FullSize::Scaled && size == full_.size();
        scaled_ = full_.scaled(shorten ? size - QSize(1, 1) : size, Qt::IgnoreAspectRatio,
                               Qt::SmoothTransformation);
        if (size == this->size()) return repaint();
        resize(size);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).drawImage(0, 0, scaled_); }

  private:
    QImage full_;
    QImage scaled_;
};

/// Seconds of what is left of the bare work where nothing is scaled.
double paintedAtFullSize(BarePicture& bare, float scaleBefore) {
    std::vector<Cost> costs;
    for (int i = 0; i < 20; ++i) {
        bare.showAt(static_cast<double>(scaleBefore));
        costs.push_back(costOf([&] { bare.showAt(1, FullSize::AsItIs); }));
    }
    return median(costs, &Cost::seconds);
}

/// From the command to the painted card, onto each step of the ladder.
void zoomStep(benchmark::State& state) {
    Program program;
    program.openFullCard();
    auto& form = program.form;
    BarePicture bare;
    const auto step = static_cast<std::int16_t>(state.range(0));
    const double scale = static_cast<double>(form.ZoomTable.at(static_cast<std::size_t>(step)));
    const auto before = static_cast<std::int16_t>(step == 1 ? 2 : step - 1);
    std::vector<Cost> ours;
    std::vector<Cost> theirs;
    for (auto _ : state) {
        form.ZoomLevel = before;
        zev::RebuildScreenImage(form);
        toolkit::test::settle();
        ours.push_back(costOf([&] {
            step == 1 ? zev::MZoomOut_Click(form) : zev::MZoomIn_Click(form);
            toolkit::test::settle();
        }));
        state.SetIterationTime(ours.back().seconds);
        bare.showAt(static_cast<double>(form.ZoomTable.at(static_cast<std::size_t>(before))));
        theirs.push_back(costOf([&] { bare.showAt(scale); }));
    }
    if (scale == 1)
        state.counters["ratio_to_painting"] =
            median(ours, &Cost::seconds) / paintedAtFullSize(bare, form.ZoomTable.at(10));
    state.counters["bare_ms"] = median(theirs, &Cost::seconds) * 1000;
    state.counters["median_ms"] = median(ours, &Cost::seconds) * 1000;
    state.counters["ratio"] = median(ours, &Cost::seconds) / median(theirs, &Cost::seconds);
    state.counters["cpu_ratio"] = median(ours, &Cost::processor) / median(theirs, &Cost::processor);
}
BENCHMARK(zoomStep)->DenseRange(1, 11)->UseManualTime()->Unit(benchmark::kMillisecond);

/// One move of the full card at 1.0, painted, in a window that fills a screen of 1920 x 1080.
void dragStep(benchmark::State& state) {
    Program program({}, {.width = 1920 * 15, .height = 1080 * 15});
    program.openFullCard();
    auto& form = program.form;
    form.ZoomLevel = 11;
    zev::RebuildScreenImage(form);
    toolkit::test::settle();
    float way = 30;
    const auto before = toolkit::test::cardPaints().pixels;
    for (auto _ : state) {
        form.P1.Left += way;
        form.P1.Top += way;
        way = -way;
        toolkit::test::settle();
        QGuiApplication::sync(); // until the screen has it
    }
    state.counters["painted_pixels"] =
        benchmark::Counter(static_cast<double>(toolkit::test::cardPaints().pixels - before),
                           benchmark::Counter::kAvgIterations);
    state.counters["frames_per_second"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(dragStep)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The fields of the installed card so many times over.
std::string layoutOf(int times) {
    const int marks = 230 * times;
    const int texts = 120 * times;
    std::ostringstream layout;
    layout << "' Program version: 2.0.0\r\n15,19200\r\n\"Arial\",\"11.00\",\"14.00\",\"18.00\"\r\n"
           << "\"Wingdings\",\"18.00\",\"22.00\",\"30.00\"\r\n"
           << "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n"
           << marks << "\r\n";
    for (int i = 1; i <= marks; ++i)
        layout << i << ',' << i % 58 * 20 << ',' << i / 58 * 20 % 1200 << ",18,18,1,1,252,0\r\n";
    layout << texts << "\r\n";
    for (int i = 1; i <= texts; ++i)
        layout << i << ',' << i % 10 * 110 << ',' << i / 10 * 20 % 1200 << ",100,18,1,1,0\r\n";
    return layout.str();
}

/// A rebuild with up to ten times as many fields; the cost for each field is what must stay.
void rebuildWithFields(benchmark::State& state) {
    Program program(layoutOf(static_cast<int>(state.range(0))));
    program.openFullCard();
    for (auto _ : state) {
        zev::RebuildScreenImage(program.form);
        toolkit::test::settle();
    }
    state.counters["times_fields"] = static_cast<double>(state.range(0));
}
BENCHMARK(rebuildWithFields)->Arg(1)->Arg(2)->Arg(5)->Arg(10)->Unit(benchmark::kMillisecond);

double residentMebibytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:")) return std::stod(line.substr(6)) / 1024;
    return 0;
}

/// Memory behind ten zoom steps and behind a thousand.
void thousandZoomSteps(benchmark::State& state) {
    Program program;
    program.openFullCard();
    auto& form = program.form;
    const auto walk = [&](int count) {
        for (int i = 0; i < count; ++i) {
            i / 10 % 2 == 0 ? zev::MZoomIn_Click(form) : zev::MZoomOut_Click(form);
            toolkit::test::settle();
        }
    };
    for (auto _ : state) {
        form.ZoomLevel = 1;
        zev::RebuildScreenImage(form);
        walk(20);
        state.counters["first_MiB"] = residentMebibytes();
        walk(1000);
        state.counters["last_MiB"] = residentMebibytes();
    }
}
BENCHMARK(thousandZoomSteps)->Unit(benchmark::kSecond)->Iterations(1);

} // namespace

int main(int argumentCount, char** arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    benchmark::Initialize(&argumentCount, arguments);
    const toolkit::Application application(argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
