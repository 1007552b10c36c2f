#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <sstream>

#include "app/form_load.h"
#include "app/wiring.h"
#include "card/load.h"
#include "card/write_card.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "support/form_test.h"
#include "support/system.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/files.h"
#include "toolkit/base/key.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/base/write_file.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/program.h"
#include "toolkit/window/screen.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace fs = std::filesystem;

namespace {

constexpr std::size_t timeLength = 9; // "00000.00 "

template <typename Value>
Value takeFirst(std::vector<Value>& values) {
    Value value = std::move(values.front());
    values.erase(values.begin());
    return value;
}

fs::path newFolder() { return test_system::newFolder("zevlin-test-"); }

std::vector<std::string> linesOf(const std::string& content) {
    std::vector<std::string> lines;
    std::istringstream stream(content);
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

/// The message of a trace line, its time cut off.
std::string messageOf(const std::string& line) {
    return line.size() >= timeLength && line[5] == '.' ? line.substr(timeLength) : line;
}

} // namespace

FormTest::FormTest() : home(newFolder()) {
    programFolder = home / "program";
    dataFolder = home / "Documents" / "ZEV";
    fs::create_directories(programFolder);
    fs::create_directories(dataFolder);
    for (const char* number : {"12", "13", "15"}) {
        const std::string name = std::string("Definitions.Ini.") + number;
        fs::copy_file(fs::path(ZEVLIN_CARD_FOLDER) / name, programFolder / name);
    }
    toolkit::overrideProgram(
        {.programFolder = programFolder,
         .documentsFolder = home / "Documents",
         .stateFolder = home / "state",
         .noDocuments = false,
         .throwAtEnd = true,
         .shortWaits = true,
         .launch = [this](const std::string& what) { launched.push_back(what); },
         .beep = [this] { ++beeps; },
         .duringWait =
             [this](int milliseconds) {
                 if (duringWait) duringWait(milliseconds);
             },
         .player = [this] { actInChooser(); }});
    // Neither this machine's printers nor its place must matter: pages are of letter size.
    toolkit::overridePlace("en_US");
    toolkit::overridePrinters({toolkit::printerNamed(toolkit::printToPdfName)});
    // A screen on which the whole card can be clicked.
    toolkit::overrideScreen({.width = 24000, .height = 24000});
    fs::copy_file(programFolder / "Definitions.Ini.15", dataFolder / "Definitions.Ini");
    writeOptions("Zoom=5\r\n");
    answerBoxes();
}

FormTest::~FormTest() {
    window.reset();
    form.Journal.lock.release();
    toolkit::answerDialogsWith({});
    toolkit::overrideProgram({});
    toolkit::overrideScreen({});
    toolkit::overridePrinters({});
    toolkit::overridePlace({});
    toolkit::overrideNoPrinter(false);
    toolkit::overrideClock(-1);
    fs::remove_all(home);
}

void FormTest::answerBoxes() {
    toolkit::answerDialogsWith(
        {.message =
             [this](const toolkit::MessageBox& box) {
                 boxes.push_back({box.text, box.title, box.buttons, box.icon, box.preset});
                 if (box.buttons == toolkit::Buttons::Ok && answers_.empty()) {
                     return toolkit::Answer::Ok;
                 }
                 EXPECT_FALSE(answers_.empty()) << "no answer waits for the box: " << box.text;
                 return answers_.empty() ? toolkit::Answer::Cancel : takeFirst(answers_);
             },
         .input =
             [this](const toolkit::InputBox& box) {
                 inputs.push_back(box);
                 if (whileAsking) whileAsking();
                 EXPECT_FALSE(inputAnswers_.empty()) << "no answer waits for: " << box.prompt;
                 return inputAnswers_.empty() ? std::string() : takeFirst(inputAnswers_);
             },
         .popup =
             [this](std::span<const toolkit::PopupRow> rows) {
                 ++popups;
                 if (!popupChoices_.empty()) takeFirst(popupChoices_)(rows);
             },
         .file =
             [this](const toolkit::FileQuestion& question) {
                 fileQuestions.push_back(question);
                 if (whileAsking) whileAsking();
                 EXPECT_FALSE(fileAnswers_.empty()) << "no answer waits for: " << question.preset;
                 return fileAnswers_.empty() ? fs::path() : takeFirst(fileAnswers_);
             }});
}

void FormTest::actInChooser() {
    choosers.push_back(form.Caption);
    EXPECT_FALSE(chooserActs_.empty()) << "nobody answers the chooser";
    if (chooserActs_.empty()) {
        // The chooser may be that of another form.
        toolkit::test::typeKey(toolkit::key::escape);
    } else {
        takeFirst(chooserActs_)();
    }
}

void FormTest::TearDown() {
    EXPECT_TRUE(chooserActs_.empty()) << "an answer waited for a chooser that never came";
    EXPECT_TRUE(answers_.empty()) << "an answer waited for a box that never came";
    EXPECT_TRUE(inputAnswers_.empty()) << "an answer waited for an input box that never came";
    EXPECT_TRUE(fileAnswers_.empty()) << "an answer waited for a question that never came";
    checkForErrors();
}

void FormTest::checkForErrors() const {
    for (const std::string& line : linesOf(traceFile())) {
        const std::string message = messageOf(line);
        EXPECT_FALSE(message.starts_with("Error") && !isAnnounced(message)) << message;
    }
    for (const std::string& line : traceLines()) {
        EXPECT_FALSE(line.starts_with("Error") && !isAnnounced(line)) << line;
    }
}

bool FormTest::isAnnounced(std::string_view line) const {
    return std::ranges::any_of(announced_,
                               [&](const std::string& begin) { return line.starts_with(begin); });
}

void FormTest::wireOnly() { window = std::make_unique<toolkit::Window>(wire(form)); }

void FormTest::start(std::string_view commandLine) {
    wireOnly();
    Form_Load(form, commandLine);
    window->update();
    toolkit::test::settle();
}

std::optional<int> FormTest::exitCodeOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const toolkit::ProgramEnded& end) {
        return end.exitCode;
    }
    return std::nullopt;
}

bool FormTest::endsProgram(const std::function<void()>& call) {
    return exitCodeOf(call) == EXIT_SUCCESS;
}

bool FormTest::failsProgram(const std::function<void()>& call) {
    return exitCodeOf(call) == EXIT_FAILURE;
}

void FormTest::makeFirstRun() { fs::remove_all(dataFolder.parent_path()); }

void FormTest::writeOptions(std::string_view content) {
    toolkit::writeFile(dataFolder / "ZEV.Ini", content);
}

void FormTest::writeLayout(std::string_view content) {
    toolkit::writeFile(dataFolder / "Definitions.Ini", content);
}

void FormTest::writeCard(std::string_view name, std::string_view content) {
    toolkit::writeFile(dataFile(std::string(name) + ".zev"), content);
}

void FormTest::openFilledCard(const std::string& text) {
    const auto lines = [](int count, const std::string& rest) {
        std::string all = std::to_string(count) + "\r\n";
        for (int number = 1; number <= count; ++number)
            all += std::to_string(number) + rest + "\r\n";
        return all;
    };
    writeCard("Filled", "'Program version: 2.0.0\r\n\"\",\"\"\r\n" +
                            lines(form.AMark.UBound(), ",1,0") +
                            lines(form.AText.UBound(), ",\"" + text + "\",0"));
    form.CardName = "Filled";
    GetCardFile(form);
}

void FormTest::answer(toolkit::Answer answer) { answers_.push_back(answer); }

void FormTest::answerInput(std::string text) { inputAnswers_.push_back(std::move(text)); }

void FormTest::answerFile(fs::path file) { fileAnswers_.push_back(std::move(file)); }
void FormTest::answerChooser(std::function<void()> acts) {
    chooserActs_.push_back(std::move(acts));
}

void FormTest::answerName(std::string utf8) {
    answerChooser([name = std::move(utf8)] {
        if (name.empty()) return toolkit::test::typeKey(toolkit::key::escape);
        toolkit::test::typeText(name);
        toolkit::test::typeKey(toolkit::key::enter);
    });
}

void FormTest::answerPopup(std::function<void(std::span<const toolkit::PopupRow>)> choice) {
    popupChoices_.push_back(std::move(choice));
}

void FormTest::announceError(std::string_view beginning) { announced_.emplace_back(beginning); }

std::vector<std::string> FormTest::traceLines() const {
    std::vector<std::string> lines;
    std::transform(form.Trace.rbegin(), form.Trace.rend(), std::back_inserter(lines), messageOf);
    return lines;
}

std::string FormTest::traceFile() const {
    const fs::path file = dataFolder / "Trace.txt";
    return fs::exists(file) ? toolkit::readFile(file) : std::string();
}

bool FormTest::traced(std::string_view line) const {
    const auto ring = traceLines();
    if (std::ranges::find(ring, line) != ring.end()) return true;
    return std::ranges::any_of(linesOf(traceFile()), [&](const std::string& fileLine) {
        return messageOf(fileLine) == line;
    });
}

fs::path FormTest::dataFile(std::string_view name) const {
    return dataFolder / std::u8string(name.begin(), name.end());
}

std::string FormTest::dataFileContent(std::string_view name) const {
    return toolkit::readFile(dataFile(name));
}

FormTest::CardPoint FormTest::targetOf(int mark) const {
    const toolkit::Label& label = form.AMark[mark];
    return {label.Left + label.Width / 3, label.Top + label.Height / 2};
}

FormTest::CardPoint FormTest::middleOf(const toolkit::Label& label) const {
    return {label.Left + label.Width / 2, label.Top + label.Height / 2};
}

void FormTest::clickMark(int mark, int button) {
    const CardPoint point = targetOf(mark);
    toolkit::test::click(point.x, point.y, button);
}

void FormTest::clickText(int field, int button) {
    const CardPoint point = middleOf(form.AText[field]);
    toolkit::test::click(point.x, point.y, button);
}

std::string smallLayout(const std::vector<SmallField>& marks, const std::vector<SmallField>& texts,
                        std::string_view tabPairs, int largestTab) {
    std::ostringstream text;
    text << "' Program version: 2.0.0\r\n15,19200\r\n\"Arial\",\"11.00\",\"14.00\",\"18.00\"\r\n"
         << "\"Wingdings\",\"18.00\",\"22.00\",\"30.00\"\r\n"
         << "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n"
         << marks.size() << "\r\n";
    int number = 0;
    for (const SmallField& mark : marks) {
        text << ++number << ',' << mark.left << ',' << mark.top << ',' << mark.width << ','
             << mark.height << ',' << mark.color << ',' << mark.size << ',' << mark.symbol
             << ",0\r\n";
    }
    text << texts.size() << "\r\n";
    number = 0;
    for (const SmallField& field : texts) {
        text << ++number << ',' << field.left << ',' << field.top << ',' << field.width << ','
             << field.height << ',' << field.color << ',' << field.size << ",0\r\n";
    }
    if (largestTab > 0) text << largestTab << "\r\n" << tabPairs;
    return text.str();
}

} // namespace zev::test
