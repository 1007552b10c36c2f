#include <algorithm>
#include <set>
#include <sstream>
#include <utility>

#include "app/second_run.h"
#include "faults/fault_test.h"
#include "toolkit/base/clock.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/shell_folders.h"

/// The platform hands painting to threads, which a forked process doesn't have. This does the work
/// at once instead.
void workAtOnce(void* pool, std::function<void()> work,
                int priority) asm("_ZN11QThreadPool5startESt8functionIFvvEEi");
// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is the platform's
void workAtOnce(void* /*pool*/, std::function<void()> work, int /*priority*/) { work(); }

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using test_faults::Files;
using test_faults::Kind;

/// The content without what it tells of the moment: in comments all after a colon, and figures; of
/// a page when it was made.
std::string withoutFigures(const std::string& content) {
    std::istringstream lines(content);
    std::string text;
    for (std::string line; std::getline(lines, line); text += line + '\n') {
        if (line.starts_with("/CreationDate ")) line.clear();
        if (!line.starts_with('\'')) continue;
        line.resize(std::min(line.find(':'), line.size()));
        std::erase_if(line, [](char c) { return c >= '0' && c <= '9'; });
    }
    return text;
}

std::string nameOf(const std::string& path) { return fs::path(path).filename().string(); }

/// The files as found after a restart: the process number in a lock means no process any more.
Files afterReboot(Files disk) {
    for (auto& [path, content] : disk) {
        if (!path.ends_with(".lock")) continue;
        std::istringstream lines(std::exchange(content, {}));
        constexpr int processLine = 1;
        constexpr int bootLine = 5;
        std::string line;
        for (int number = 1; std::getline(lines, line); ++number) {
            if (number == processLine) line = "999999999";
            if (number == bootLine) line = "another";
            content += line;
            if (!lines.eof()) content += '\n';
        }
    }
    return disk;
}

/// The first line in which the contents differ, from both.
std::string difference(const Files& files, const std::string& path, const std::string& content) {
    const auto at = files.find(path);
    if (at == files.end()) return "no such file";
    std::istringstream expected(withoutFigures(at->second));
    std::istringstream found(withoutFigures(content));
    std::string left;
    std::string right;
    while (std::getline(expected, left) && std::getline(found, right) && left == right) continue;
    return "\"" + left.substr(0, 80) + "\" became \"" + right.substr(0, 80) + "\"";
}

bool holds(const Files& files, const std::string& path, const std::string& content) {
    const auto at = files.find(path);
    return at != files.end() &&
           (at->second == content || withoutFigures(at->second) == withoutFigures(content));
}

} // namespace

FaultTest::FaultTest() {
    // Otherwise the time stamps of the runs would differ.
    toolkit::overrideClock(1795000000);
    // If the documents folder can't be found, the program works in the folder where it was started.
    fs::create_directory(home / "here");
    fs::current_path(home / "here");
}

FaultTest::~FaultTest() { fs::current_path(folderBefore_); }

void FaultTest::startWithChangedCard() {
    start();
    openCard("Jones", {.marks = {"1,0,0", "2,0,0", "3,0,0"},
                       .texts = {"1,\"before\",0", "2,\"kept\",0", "3,\"we\",1"}});
    clickMark(1);
    typeInto(1, "typed");
    ASSERT_TRUE(form.CardModified);
    hasCard = true;
}

void FaultTest::runWithEveryFault(const Act& act, const std::vector<Kind>& kinds) {
    test_faults::FaultRuns runs{.home = home,
                                .folder = dataFolder,
                                .scenario =
                                    [&] {
                                        answerEverything();
                                        hasEnded = exitCodeOf(act).has_value();
                                    },
                                .check = {},
                                .kinds = kinds,
                                .countsLooks = countsLooks};
    const Files before = test_faults::filesIn(home);
    const Files after = test_faults::filesAfter(runs);
    runs.check = [&](Kind /*kind*/) {
        if (hasCard && !hasEnded && !leavesCard) expectCardIn(form);
        if (!hasEnded) toolkit::test::elapseAlarms();
        // A dead program holds no lock.
        form.Journal.lock.release();
        expectAllAtNextStart(before, after);
    };
    const int count = test_faults::forEveryFault(runs);
    RecordProperty("runs", count);
}

/// Boxes that tell of faults are closed, and questions declined, except the one that gives the card
/// back.
void FaultTest::answerEverything() {
    answersEverything_ = true;
    toolkit::answerDialogsWith(
        {.message =
             [this](const toolkit::MessageBox& box) {
                 const bool isAgreed =
                     !agreedQuestion.empty() && box.text.starts_with(agreedQuestion);
                 if (isAgreed || box.text.starts_with("Zevlin ended before"))
                     return toolkit::Answer::Yes;
                 return box.buttons == toolkit::Buttons::Ok ? toolkit::Answer::Ok
                                                            : toolkit::Answer::Cancel;
             },
         .input = [this](const toolkit::InputBox& /*box*/) { return inputAnswer; },
         .popup = {},
         .file = [this](const toolkit::FileQuestion& /*question*/) { return fileAnswer; }});
}

void FaultTest::actInChooser() {
    if (answersEverything_) answerName(nameAnswer);
    FormTest::actInChooser();
}

void FaultTest::expectCardIn(const Zevlin& program) const {
    ASSERT_EQ(program.AMark.UBound(), 3);
    ASSERT_EQ(program.AText.UBound(), 3);
    EXPECT_TRUE(program.AMark[1].Visible);
    EXPECT_FALSE(program.AMark[2].Visible);
    EXPECT_EQ(program.AText[1].Tag, "typed");
    EXPECT_NE(std::ranges::find(secondTexts, program.AText[2].Tag), secondTexts.end())
        << program.AText[2].Tag;
    EXPECT_FALSE(program.CardName.starts_with("$$"));
}

void FaultTest::expectAllAtNextStart(const Files& before, const Files& after) {
    answerEverything();
    // A card that isn't offered is opened from its file.
    nameAnswer = hasCard ? savedName : "";
    {
        const SecondRun next(window);
        if (hasCard) expectCardIn(next.form);
    }
    const Files found = test_faults::filesIn(home);
    if (judgesFiles) expectEachFileOldOrNew(found, before, after);
    expectContentsKept(found);
}

void FaultTest::expectContentsKept(const Files& found) const {
    for (const std::string& content : contentsToKeep) {
        const bool isKept = std::ranges::any_of(found, [&](const auto& file) {
            return file.first.ends_with(".zev") && file.second == content;
        });
        EXPECT_TRUE(isKept) << content;
    }
}

void FaultTest::runWithEveryCut(const Act& act) {
    const Files before = test_faults::filesIn(home);
    std::vector<test_faults::Operation> done;
    {
        const test_faults::Watch watch(home);
        act();
        done = watch.done();
    }
    const Files after = test_faults::filesIn(home);
    EXPECT_NE(before, after);
    form.Journal.lock.release();
    std::set<Files> disks;
    for (std::size_t count = 0; count <= done.size() && !HasFailure(); ++count) {
        test_faults::forEachDisk(before, std::span(done).first(count), [&](const Files& disk) {
            if (!disks.insert(afterReboot(disk)).second) return;
            EXPECT_TRUE(test_faults::passesAlone([&] {
                test_faults::putFiles(home, afterReboot(disk));
                expectAllAtNextStart(before, after);
            })) << "cut after operation "
                << count;
        });
    }
    test_faults::putFiles(home, after);
    RecordProperty("disks", static_cast<int>(disks.size()));
}

void FaultTest::expectEachFileOldOrNew(const Files& found, const Files& before,
                                       const Files& after) const {
    for (const auto& [path, content] : found) {
        const bool isPrograms = path.starts_with(dataFolder.string() + "/") ||
                                path.starts_with(programFolder.string() + "/") ||
                                fs::path(path).parent_path() == home;
        if (isPrograms) expectWholeFile(path, content, before, after);
    }
    for (const auto& [path, content] : before) {
        const bool isJournals = path.starts_with((home / "state").string() + "/");
        EXPECT_TRUE(found.contains(path) || !after.contains(path) || isJournals)
            << path << " is gone";
    }
}

void FaultTest::expectWholeFile(const std::string& path, const std::string& content,
                                const Files& before, const Files& after) const {
    if (nameOf(path) == "Trace.txt") return;
    EXPECT_FALSE(nameOf(path).starts_with("$$")) << path;
    EXPECT_TRUE(holds(before, path, content) || holds(after, path, content))
        << path << ", " << content.size()
        << " bytes; from before: " << difference(before, path, content)
        << "; from after: " << difference(after, path, content);
}

} // namespace zev::test
