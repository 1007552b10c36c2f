#include "faults/fault_test.h"

#include <algorithm>
#include <sstream>

#include "app/second_run.h"
#include "toolkit/clock.h"

/// The painting of the platform deals its work to threads, which a forked process doesn't have:
/// here it does the work at once.
void workAtOnce(void* pool, std::function<void()> work,
                int priority) asm("_ZN11QThreadPool5startESt8functionIFvvEEi");
void workAtOnce(void* /*pool*/, std::function<void()> work, int /*priority*/) { work(); }

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using test_faults::Files;
using test_faults::Kind;

/// Comments tell of the machine at that moment, behind a colon and in figures.
std::string withoutFigures(const std::string& content) {
    std::istringstream lines(content);
    std::string text;
    for (std::string line; std::getline(lines, line); text += line + '\n') {
        if (!line.starts_with('\'')) continue;
        line.resize(std::min(line.find(':'), line.size()));
        std::erase_if(line, [](char c) { return c >= '0' && c <= '9'; });
    }
    return text;
}

std::string nameOf(const std::string& path) { return fs::path(path).filename().string(); }

/// What the next start deletes or puts back in its place.
bool isClearedByNextStart(const std::string& name) {
    return name == "$$Tempcard.zev" || name == "$$TempDef.Ini" ||
           (name.starts_with("$$") && name.ends_with(".part"));
}

/// The first line in which they differ, of both.
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
    return at != files.end() && withoutFigures(at->second) == withoutFigures(content);
}

} // namespace

FaultTest::FaultTest() {
    // Or the time stamp would tell the runs apart.
    toolkit::overrideClock(1795000000);
    // Where the program doesn't get to know the player's documents, it works where it was started.
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
                                        hasEnded = endsProgram(act);
                                    },
                                .check = {},
                                .kinds = kinds,
                                .countsLooks = countsLooks};
    const Files before = test_faults::filesIn(home);
    const Files after = test_faults::filesAfter(runs);
    runs.check = [&](Kind /*kind*/) {
        expectEachFileOldOrNew(test_faults::filesIn(home), before, after);
        if (!hasCard) return;
        if (!hasEnded)
            expectCardIn(form);
        else if (isOffered)
            expectCardAtNextStart();
    };
    const int count = test_faults::forEveryFault(runs);
    RecordProperty("runs", count);
}

/// Boxes tell of faults; what they ask is declined, but for the card that comes back.
void FaultTest::answerEverything() {
    toolkit::answerDialogsWith(
        {.message =
             [](const toolkit::MessageBox& box) {
                 if (box.text.starts_with("Zevlin ended before")) return toolkit::Answer::Yes;
                 return box.buttons == toolkit::Buttons::Ok ? toolkit::Answer::Ok
                                                            : toolkit::Answer::Cancel;
             },
         .input = [this](const toolkit::InputBox& /*box*/) { return inputAnswer; },
         .popup = {},
         .file = [this](const toolkit::FileQuestion& /*question*/) { return fileAnswer; }});
}

void FaultTest::expectCardIn(const Zevlin& program) {
    ASSERT_EQ(program.AMark.UBound(), 3);
    ASSERT_EQ(program.AText.UBound(), 3);
    EXPECT_TRUE(program.AMark[1].Visible);
    EXPECT_FALSE(program.AMark[2].Visible);
    EXPECT_EQ(program.AText[1].Tag, "typed");
    EXPECT_EQ(program.AText[2].Tag, "kept");
    EXPECT_FALSE(program.CardName.starts_with("$$"));
}

void FaultTest::expectCardAtNextStart() {
    const SecondRun next(window);
    expectCardIn(next.form);
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
    for (std::size_t count = 0; count <= done.size() && !HasFailure(); ++count) {
        SCOPED_TRACE("cut after operation " + std::to_string(count));
        test_faults::forEachDisk(before, std::span(done).first(count), [&](const Files& found) {
            expectEachFileOldOrNew(found, before, after);
        });
    }
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
        const bool isSetAside = nameOf(path) == "Definitions.Ini" &&
                                found.contains((dataFolder / "$$TempDef.Ini").string());
        EXPECT_TRUE(found.contains(path) || !after.contains(path) || isSetAside)
            << path << " is gone";
    }
}

void FaultTest::expectWholeFile(const std::string& path, const std::string& content,
                                const Files& before, const Files& after) const {
    if (nameOf(path) == "Trace.txt" || isClearedByNextStart(nameOf(path))) return;
    EXPECT_TRUE(holds(before, path, content) || holds(after, path, content))
        << path << ", " << content.size()
        << " bytes; from before: " << difference(before, path, content)
        << "; from after: " << difference(after, path, content);
}

} // namespace zev::test
