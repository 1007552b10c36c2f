// The real form with a changed card, and what must hold of card and files after a fault.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "card/card_form_test.h"
#include "faults/faults.h"

namespace zev::test {

class FaultTest : public CardFormTest {
  protected:
    FaultTest();
    ~FaultTest() override;
    FaultTest(const FaultTest&) = delete;
    FaultTest& operator=(const FaultTest&) = delete;

    /// The card Jones with a text and a mark that aren't saved.
    void startWithChangedCard();
    /// What the player does; the end of the program ends it.
    using Act = std::function<void()>;
    std::string agreedQuestion;         ///< begins the question that is answered with Yes
    std::string nameAnswer;             ///< in each chooser; empty: none is chosen
    std::string inputAnswer;            ///< to each question for a text
    std::filesystem::path fileAnswer{}; ///< to each question for a file
    /// Does it once without a fault, and then with every fault of these kinds. Files are judged as
    /// the next start leaves them, and by it the player must get the card back: it is offered, or
    /// stands in its file.
    void runWithEveryFault(const Act& act,
                           const std::vector<test_faults::Kind>& kinds = test_faults::everyKind);

    /// Does it once, and judges likewise what the disk may hold after a power cut behind each
    /// operation. Where there is a card its journal is on the disk before.
    void runWithEveryCut(const Act& act);

    /// The files of the program and of the player, and those that the act is to make.
    void expectEachFileOldOrNew(const test_faults::Files& found, const test_faults::Files& before,
                                const test_faults::Files& after) const;
    /// The card as the player has left it.
    void expectCardIn(const Zevlin& program) const;

    bool countsLooks = true; ///< see FaultRuns
    bool hasEnded = false;
    bool hasCard = false;    ///< startWithChangedCard was called
    bool leavesCard = false; ///< the act does, once its file has it
    /// Of the card's file, if the act saves it.
    std::string savedName = "Jones";
    /// What the second field may hold.
    std::vector<std::string> secondTexts{"kept"};
    /// Cards that no run may cost: each stands in a file somewhere, whole.
    std::vector<std::string> contentsToKeep{};
    /// Whether each file is the old or the new one. Where a first run is interrupted the next one
    /// makes the files of its own.
    bool judgesFiles = true;

    /// The program is over, and starts again; files and card are judged.
    void expectAllAtNextStart(const test_faults::Files& before, const test_faults::Files& after);

  private:
    std::filesystem::path folderBefore_ = std::filesystem::current_path();

    bool answersEverything_ = false;

    void answerEverything();
    void actInChooser() override;
    void expectContentsKept(const test_faults::Files& found) const;
    void expectWholeFile(const std::string& path, const std::string& content,
                         const test_faults::Files& before, const test_faults::Files& after) const;
};

} // namespace zev::test
