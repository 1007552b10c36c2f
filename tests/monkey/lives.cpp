// Trouble, other programs, and the lives and deaths of the program.
#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>

#include "app/form_load.h"
#include "app/wiring.h"
#include "card/journal.h"
#include "card/write_card.h"
#include "monkey/monkey.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/program.h"

namespace zev::test {
namespace fs = std::filesystem;
using toolkit::Answer;

void Monkey::bringTrouble() {
    const auto kind =
        static_cast<Troubles::Kind>(1 + pick(static_cast<std::size_t>(Troubles::Kind::count) - 1));
    if (!troubles_->strike(kind)) return;
    ++troubleCount_;
    doing_ = "trouble: " + std::string(nameOf(kind));
    if (!troubles_->hindersJournal()) return;
    journalDoubtful_ = true;
    if (kind == Troubles::Kind::NoFileGrows) return;
    unsaved_.clear();
    secondCopy_.reset();
}

void Monkey::mendTrouble() {
    if (troubles_->present() == Troubles::Kind::None) return;
    doing_ = "mend: " + std::string(nameOf(troubles_->present()));
    troubles_->mend();
}

/// Another program changes, removes or spoils a card.
void Monkey::workBehind() {
    if (troubles_->isOfFolder() || files_.empty()) return;
    auto file = files_.begin();
    std::advance(file, static_cast<std::ptrdiff_t>(pick(files_.size())));
    const fs::path path = dataFile(file->first + ".zev");
    doing_ = "behind the back: " + file->first;
    if (chance(20)) {
        fs::remove(path);
        files_.erase(file);
    } else if (chance(20)) {
        toolkit::writeFile(path, "\"garbage\",\"\"\r\nxyz");
        file->second.reset();
    } else {
        CardDocument card = account_.card;
        card.cardName = file->first;
        card.programVersion = zevlin().ProgramVersion;
        if (card.texts.empty()) return;
        card.texts[0].text = "changed " + std::to_string(events_);
        toolkit::writeFile(path, zev::writeCard(card));
        file->second = asStored(card);
    }
}

void Monkey::runSecondCopy() {
    // If the folder was emptied, the number of the first copy's journal looks free, while that copy
    // may still use it.
    if (secondCopy_ || journalDoubtful_) return;
    doing_ = "a second copy";
    secondCopy_ = std::make_unique<Zevlin>();
    Zevlin& copy = *secondCopy_;
    copy.ProgramVersion = zevlin().ProgramVersion;
    copy.DataFolder = dataFolder;
    copy.CardName = "Second " + std::to_string(++secondCopies_);
    for (int i = 1; i <= baseMarks_; ++i) copy.AMark.Load(i).Visible = i % 3 == 0;
    for (int i = 1; i <= baseTexts_; ++i) {
        copy.AText.Load(i).Tag = i == 2 ? copy.CardName + " ^h" : "";
        copy.AText[i].Alignment = toolkit::Alignment::Center;
        copy.Highlight.Load(i);
    }
    copy.CardModified = true;
    flushJournal(copy);
    EXPECT_TRUE(fs::exists(copy.Journal.file));
}

/// Journals of dead copies are ordered by their times, which are those of their ends.
void Monkey::endSecondCopy() {
    if (!secondCopy_) return;
    doing_ = "the second copy is killed";
    Zevlin& copy = *secondCopy_;
    CardDocument card;
    card.cardName = copy.CardName;
    for (int i = 1; i <= baseMarks_; ++i) card.marks.push_back(i % 3 == 0);
    for (int i = 1; i <= baseTexts_; ++i)
        card.texts.push_back({i == 2 ? card.cardName + " ^h" : "", 0});
    const fs::path file = copy.Journal.file;
    copy.Journal.lock.release();
    secondCopy_.reset();
    fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(1000) +
                                  std::chrono::minutes(++deaths_));
    unsaved_.push_back({stored(card), file});
}

/// The card as a file of the present layout holds it: without fields that only an earlier layout
/// had.
CardDocument Monkey::stored(const CardDocument& card) {
    return fittedTo(asStored(card), zevlin().AMark.UBound(), zevlin().AText.UBound());
}

/// Expects the card in the journal, which has had the time to be written.
void Monkey::expectRescued(const CardDocument& card) {
    const fs::path file = zevlin().Journal.file;
    ASSERT_TRUE(fs::exists(file)) << "nothing was kept of '" << card.cardName << "'";
    fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(1000) +
                                  std::chrono::minutes(++deaths_));
    unsaved_.push_back({stored(card), file});
}

void Monkey::noteKilled() {
    doing_ += ", killed";
    ++deaths_;
    checkTrace();
    const bool isDoubtful = journalDoubtful_ || troubles_->hindersJournal();
    const bool hasChanges = !wasDesigning_ && (account_.star || account_.isTyping());
    if (isDoubtful) {
        // What the journal holds can't be known here.
        zevlin().Journal.lock.release();
        secondCopy_.reset();
        unsaved_.clear();
        troubles_->mend();
        fs::remove_all(home / "state");
    } else if (hasChanges) {
        expectRescued(account_.withTyping());
    } else {
        EXPECT_FALSE(fs::exists(zevlin().Journal.file)) << "a journal of a card without changes";
    }
    startAgain();
}

/// After a failed save the card is in the journal, changed or not.
void Monkey::noteEnded() {
    doing_ += ", ended";
    EXPECT_NE(troubles_->present(), Troubles::Kind::None) << "the program ended";
    if (!wasDesigning_) {
        account_.commit();
        const std::string& name = zevlin().CardName;
        EXPECT_TRUE(name == account_.card.cardName || name == lastChosen(false)) << name;
        if (givesPartnerUp()) account_.card.partner = {};
        account_.card.cardName = name;
        // A card without a name is written twice: the first time may have come to its end.
        if (!name.empty()) (void)noteSaved(name);
        account_.star = true;
    }
    noteKilled();
}

void Monkey::killIt() {
    doing_ = "kill";
    toolkit::test::elapseAlarms();
    noteKilled();
}

void Monkey::exitIt() {
    account_.commit();
    bool isOver = false;
    const auto way = pick(3);
    doing_ = "exit " + std::to_string(way);
    try {
        if (way == 0) toolkit::test::chooseMenu("File>Exit");
        if (way == 1) toolkit::test::closeWindow();
        if (way == 2) toolkit::test::endSession();
    } catch (const toolkit::ProgramEnded&) {
        isOver = true;
    }
    const auto answer = answerTo(saveFirst);
    if (answer == Answer::Yes && isOver && zevlin().CardModified) return noteEnded();
    if (!wasDesigning_) {
        EXPECT_EQ(answer.has_value(), account_.star);
        if (answer == Answer::Yes) finishSave();
        if (answer == Answer::No) account_.star = false;
        if (account_.star) return;
    }
    EXPECT_TRUE(isOver || way != 0);
    noteKilled();
}

bool Monkey::tryToStart(const std::string& commandLine) {
    window.reset();
    if (zevlin_) zevlin_->Journal.lock.release();
    zevlin_ = std::make_unique<Zevlin>();
    window = std::make_unique<toolkit::Window>(wire(zevlin()));
    asked_.clear();
    chosen_.clear();
    givenUp_.clear();
    rescued_.reset();
    rescuesAsked_ = 0;
    try {
        Form_Load(zevlin(), commandLine);
        toolkit::test::settle();
        return true;
    } catch (const toolkit::ProgramEnded&) {
        return false;
    }
}

void Monkey::startAgain() {
    constexpr auto lines = std::to_array<std::string_view>({"", "", "Jones", "Smith.zev"});
    const std::string line(oneOf(lines));
    if (troubles_->isOfFolder() || chance(50)) troubles_->mend();
    journalDoubtful_ = troubles_->hindersJournal();
    mayKill_ = adoptNow_ = false;
    isStarting_ = true;
    for (int attempt = 0; !tryToStart(line); ++attempt) {
        ASSERT_LT(attempt, 3) << "it doesn't start any more";
        EXPECT_NE(troubles_->present(), Troubles::Kind::None) << "it didn't start";
        for (const std::string& error : takeErrors())
            EXPECT_TRUE(troubles_->explains(error)) << error;
        forgetGivenUp();
        troubles_->mend();
    }
    isStarting_ = false;
    checkStarted(line);
}

void Monkey::forgetGivenUp() {
    std::for_each(givenUp_.rbegin(), givenUp_.rend(), [this](std::size_t place) {
        unsaved_.erase(unsaved_.begin() + static_cast<std::ptrdiff_t>(place));
    });
}

void Monkey::checkStarted(const std::string& commandLine) {
    Zevlin& now = zevlin();
    account_ = {};
    account_.card.marks.resize(static_cast<std::size_t>(now.AMark.UBound()));
    account_.card.texts.resize(static_cast<std::size_t>(now.AText.UBound()));
    mine_ = {now.MyName, now.MyNumber};
    wasDesigning_ = false;
    EXPECT_TRUE(rescued_ || rescuesAsked_ == unsaved_.size()) << "not all were offered";
    std::string named = commandLine.substr(0, commandLine.find('.'));
    if (!files_.contains(named) || !fs::exists(dataFile(named + ".zev"))) named.clear();
    openedNow(commandLine.empty() ? lastChosen(true) : named);
    if (rescued_) {
        const Unsaved back = unsaved_.at(*rescued_);
        account_.card.cardName = back.card.cardName;
        account_.load(back.card, now.mBold.Checked);
        account_.star = true;
        adoptNow_ = badCard_ = false;
        ++rescues_;
        unsaved_.erase(unsaved_.begin() + static_cast<std::ptrdiff_t>(*rescued_));
    }
    forgetGivenUp();
}

} // namespace zev::test
