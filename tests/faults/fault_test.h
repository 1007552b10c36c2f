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
    /// What the player does, up to the end of the program if that comes first.
    using Act = std::function<void()>;
    std::string agreedQuestion;         ///< begins the question that is answered with Yes
    std::string nameAnswer;             ///< in each chooser; empty: none is chosen
    std::string inputAnswer;            ///< to each question for a text
    std::filesystem::path fileAnswer{}; ///< to each question for a file
    /// Does it once without a fault, and then with every fault of these kinds. Files are checked as
    /// the next start leaves them, and the next start must give the card back: it is offered, or is
    /// in its file.
    void runWithEveryFault(const Act& act,
                           const std::vector<test_faults::Kind>& kinds = test_faults::everyKind);

    /// Does it once, and checks in the same way what the disk may hold after a power cut following
    /// each operation. If there is a card, its journal is on the disk from the beginning.
    void runWithEveryCut(const Act& act);

    /// The files of the program and of the player, and those that the act is to make.
    void expectEachFileOldOrNew(const test_faults::Files& found, const test_faults::Files& before,
                                const test_faults::Files& after) const;
    /// The card as the player has left it.
    void expectCardIn(const Zevlin& program) const;

    bool countsLooks = true; ///< see FaultRuns
    bool hasEnded = false;
    bool hasCard = false;    ///< startWithChangedCard was called
    bool leavesCard = false; ///< after the act the form shows the card no more
    /// The name of the card's file, if the act saves it.
    std::string savedName = "Jones";
    /// What the second field may hold.
    std::vector<std::string> secondTexts{"kept"};
    /// Contents of cards that no run may lose: each must be in some file, whole.
    std::vector<std::string> contentsToKeep{};
    /// Whether to check that each file is the old or the new one. After an interrupted first run it
    /// isn't: the next run makes files of its own.
    bool judgesFiles = true;

    /// Starts the program again after its end and checks files and card.
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
