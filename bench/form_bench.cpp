// What the real form costs on the offscreen platform, each beside the bare work it can't avoid.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "app/form_load.h"
#include "app/wiring.h"
#include "app/zevlin.h"
#include "card/card_file.h"
#include "card/lifecycle.h"
#include "card/load.h"
#include "text/edit_field.h"
#include "text/set_sym.h"
#include "toolkit/dialog.h"
#include "toolkit/files.h"
#include "toolkit/key.h"
#include "toolkit/program.h"
#include "toolkit/screen.h"
#include "toolkit/test_support.h"
#include "toolkit/window.h"

namespace {

namespace fs = std::filesystem;

/// The program, started with a home of its own on the installed layout.
class Program {
  public:
    Program() : home_(newFolder()) {
        const fs::path data = home_ / "ZEV";
        fs::create_directories(data);
        fs::copy_file(fs::path(ZEVLIN_CARD_FOLDER) / "Definitions.Ini.15",
                      data / "Definitions.Ini");
        toolkit::writeFile(data / "ZEV.Ini", "Zoom=5\r\n");
        toolkit::overrideScreen({.width = 24000, .height = 24000});
        toolkit::overrideProgram({.programFolder = ZEVLIN_CARD_FOLDER, .documentsFolder = home_});
        toolkit::answerDialogsWith(
            {.message = [](const toolkit::MessageBox&) { return toolkit::Answer::No; },
             .input = [](const toolkit::InputBox&) { return std::string(); },
             .popup = {}});
        window_ = std::make_unique<toolkit::Window>(zev::wire(form));
        zev::Form_Load(form, {});
        toolkit::test::settle();
    }
    ~Program() {
        window_.reset();
        fs::remove_all(home_);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    zev::Zevlin form;

    /// Every mark set and every text with a symbol, in the file of this name.
    void writeFullCard(const std::string& name) {
        zev::CardDocument document;
        document.cardName = name;
        document.programVersion = form.ProgramVersion;
        document.marks.assign(static_cast<std::size_t>(form.AMark.UBound()), true);
        document.texts.assign(static_cast<std::size_t>(form.AText.UBound()),
                              {"2^h 3^s && more", 0});
        toolkit::writeFile(form.DataFolder / (name + ".zev"), zev::writeCard(document));
    }

  private:
    static fs::path newFolder() {
        std::string name = (fs::temp_directory_path() / "zevlin-bench-XXXXXX").string();
        return mkdtemp(name.data());
    }

    fs::path home_;
    std::unique_ptr<toolkit::Window> window_;
};

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

void paintFullCard(benchmark::State& state) {
    Program program;
    program.writeFullCard("Full");
    program.form.CardName = "Full";
    zev::GetCardFile(program.form);
    toolkit::test::settle();
    for (auto _ : state) benchmark::DoNotOptimize(toolkit::test::grabCard());
}
BENCHMARK(paintFullCard)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    benchmark::Initialize(&argumentCount, arguments);
    const toolkit::Application application(argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
