// The program with a home of its own, for benchmarks.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "app/form_load.h"
#include "app/wiring.h"
#include "card/card_file.h"
#include "card/load.h"
#include "card/write_card.h"
#include "form/zevlin.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/program.h"
#include "toolkit/window/screen.h"
#include "toolkit/window/shell_folders.h"
#include "toolkit/window/window.h"

namespace bench {

namespace fs = std::filesystem;

/// Started on the installed layout or another one, on a screen that shows the whole card at 1.0.
class Program {
  public:
    explicit Program(const std::string& layout = {},
                     const toolkit::ScreenOverrides& screen = {.width = 48000, .height = 48000})
        : home_(newFolder()) {
        const fs::path data = home_ / "ZEV";
        fs::create_directories(data);
        if (layout.empty())
            fs::copy_file(fs::path(ZEVLIN_CARD_FOLDER) / "Definitions.Ini.15",
                          data / "Definitions.Ini");
        else
            toolkit::writeFile(data / "Definitions.Ini", layout);
        toolkit::writeFile(data / "ZEV.Ini", "Zoom=5\r\n");
        toolkit::overrideScreen(screen);
        toolkit::overrideProgram({.programFolder = ZEVLIN_CARD_FOLDER,
                                  .documentsFolder = home_,
                                  .stateFolder = home_ / "state",
                                  .beep = [] {}});
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
    /// Opens it.
    void openFullCard() {
        writeFullCard("Full");
        form.CardName = "Full";
        zev::GetCardFile(form);
        toolkit::test::settle();
    }

  private:
    static fs::path newFolder() {
        std::string name = (fs::temp_directory_path() / "zevlin-bench-XXXXXX").string();
        return mkdtemp(name.data());
    }

    fs::path home_;
    std::unique_ptr<toolkit::Window> window_;
};

} // namespace bench
