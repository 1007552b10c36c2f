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
    std::string inputAnswer;            ///< to each question for a text
    std::filesystem::path fileAnswer{}; ///< to each question for a file
    /// Does it once without a fault, and then with every fault of these kinds.
    void runWithEveryFault(const Act& act,
                           const std::vector<test_faults::Kind>& kinds = test_faults::everyKind);

    /// Does it once, and looks at what the disk may hold after a power cut behind each operation.
    void runWithEveryCut(const Act& act);

    /// The files of the program and of the player, and those that the act is to make.
    void expectEachFileOldOrNew(const test_faults::Files& found, const test_faults::Files& before,
                                const test_faults::Files& after) const;
    /// The card as the player has left it.
    static void expectCardIn(const Zevlin& program);

    bool countsLooks = true; ///< see FaultRuns
    bool hasEnded = false;
    bool hasCard = false; ///< startWithChangedCard was called
    /// Whether the next start offers the card that an end of the program has cost.
    bool isOffered = false;

    /// Once the program has ended the card comes back at the next start, if the player says so.
    void expectCardAtNextStart();

  private:
    std::filesystem::path folderBefore_ = std::filesystem::current_path();

    void answerEverything();
    void expectWholeFile(const std::string& path, const std::string& content,
                         const test_faults::Files& before, const test_faults::Files& after) const;
};

} // namespace zev::test
