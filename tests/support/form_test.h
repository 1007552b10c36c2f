// The real form on the offscreen platform, with a home and a program folder of its own.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "form/zevlin.h"
#include "toolkit/testing/test_boxes.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/popup_menu.h"
#include "toolkit/window/shell_folders.h"
#include "toolkit/window/window.h"

namespace zev::test {

/// Twips per pixel on the usual screen.
constexpr float pixel = 15;

/// A message box that was shown.
struct ShownBox {
    std::string text;
    std::string title;
    toolkit::Buttons buttons = toolkit::Buttons::Ok;
    toolkit::Icon icon = toolkit::Icon::None;
    std::optional<toolkit::Answer> preset{};
};

/// Every box must be foreseen: one without a prepared answer fails the test. A trace line that
/// begins with "Error" fails the test unless it was announced.
class FormTest : public testing::Test {
  protected:
    FormTest();
    ~FormTest() override;
    FormTest(const FormTest&) = delete;
    FormTest& operator=(const FormTest&) = delete;

    void TearDown() override;

    /// Starts the program; with an options file in the data folder it is no first run.
    void start(std::string_view commandLine = {});
    /// Makes the window without starting, for tests that call the procedures of the start
    /// themselves.
    void wireOnly();
    /// Runs a call: the code with which it ended the program, nothing if the program goes on.
    [[nodiscard]] static std::optional<int> exitCodeOf(const std::function<void()>& call);
    /// Runs a call that is expected to end the program in good order; true if it did.
    [[nodiscard]] static bool endsProgram(const std::function<void()>& call);
    /// Runs a call that is expected to end the program as failed; true if it did.
    [[nodiscard]] static bool failsProgram(const std::function<void()>& call);

    // Before start(): what is in the data folder. By default an options file (half size, no fit)
    // and the installed layout, no cards.
    void makeFirstRun();
    void writeOptions(std::string_view content);
    void writeLayout(std::string_view content);
    void writeCard(std::string_view name, std::string_view content);

    /// Opens a card with every mark set and the same text in every area.
    void openFilledCard(const std::string& text);

    // What the player answers, in the order of the boxes.
    void answer(toolkit::Answer answer);
    void answerInput(std::string text);
    /// The file that the player chooses to be written; an empty path cancels.
    void answerFile(std::filesystem::path file);
    /// In the chooser the player types the name and presses Enter; without a name they press Esc.
    void answerName(std::string utf8);
    /// What the player does in the chooser, until it closes.
    void answerChooser(std::function<void()> acts);
    /// What the player does in the next pop-up menu; without this a pop-up menu is closed again.
    void answerPopup(std::function<void(std::span<const toolkit::PopupRow>)> choice);

    /// Lines that begin like this are expected in the trace.
    void announceError(std::string_view beginning);
    /// All trace lines so far that the ring still holds, oldest first, without their times.
    [[nodiscard]] std::vector<std::string> traceLines() const;
    /// Content of the trace file, empty if there is none.
    [[nodiscard]] std::string traceFile() const;
    /// Whether a line of the ring or the trace file is this text.
    [[nodiscard]] bool traced(std::string_view line) const;

    /// The name is in UTF-8.
    [[nodiscard]] std::filesystem::path dataFile(std::string_view name) const;
    [[nodiscard]] std::string dataFileContent(std::string_view name) const;

    /// What the player does while the chooser is open, once.
    virtual void actInChooser();

    // Places on the card in twips.
    /// A point inside a mark's inner target.
    struct CardPoint {
        float x = 0;
        float y = 0;
    };
    [[nodiscard]] CardPoint targetOf(int mark) const;
    [[nodiscard]] CardPoint middleOf(const toolkit::Label& label) const;
    void clickMark(int mark, int button = toolkit::button::left);
    void clickText(int field, int button = toolkit::button::left);

    std::filesystem::path home;
    std::filesystem::path dataFolder;
    std::filesystem::path programFolder;
    std::vector<ShownBox> boxes;                      ///< every message box so far
    std::vector<toolkit::InputBox> inputs;            ///< every input box so far
    std::vector<toolkit::FileQuestion> fileQuestions; ///< every question for a file so far
    std::vector<std::string> choosers;                ///< the form's title in each chooser so far
    int popups = 0;                                   ///< pop-up menus so far
    int beeps = 0;
    std::vector<std::string> launched; ///< what was opened outside the program
    /// Runs while the program waits for the name of a file or of an image.
    std::function<void()> whileAsking;
    /// Runs during each wait of the program.
    std::function<void(int milliseconds)> duringWait;
    Zevlin form;
    std::unique_ptr<toolkit::Window> window;

  private:
    void answerBoxes();
    void checkForErrors() const;
    [[nodiscard]] bool isAnnounced(std::string_view line) const;

    std::vector<toolkit::Answer> answers_;
    std::vector<std::string> inputAnswers_;
    std::vector<std::filesystem::path> fileAnswers_;
    std::vector<std::function<void()>> chooserActs_;
    std::vector<std::function<void(std::span<const toolkit::PopupRow>)>> popupChoices_;
    std::vector<std::string> announced_;
};

/// A field of a small layout, for tests that need few fields at known places.
struct SmallField {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    int color = 1;
    int size = 1;
    int symbol = 252; ///< marks only
};
[[nodiscard]] std::string smallLayout(const std::vector<SmallField>& marks,
                                      const std::vector<SmallField>& texts,
                                      std::string_view tabPairs = {}, int largestTab = 0);

} // namespace zev::test
