// A monkey at mouse and keyboard, with a file system and printers in trouble, that keeps account of
// what it has typed. A seed repeats a run.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "monkey/card_account.h"
#include "monkey/troubles.h"
#include "support/form_test.h"

namespace zev::test {

/// How the question about a changed card begins.
constexpr std::string_view saveFirst = "Do you want to save the current card first?";

class Monkey : public FormTest {
  protected:
    Monkey();
    ~Monkey() override;

    struct Course {
        unsigned seed = 0;
        int events = 0;
        bool onInstalledLayout = false; ///< hundreds of fields on the real picture, which is slower
    };
    /// Stops at the first failure.
    void run(const Course& course);

    /// A hash of all that was done and seen, to compare runs by.
    [[nodiscard]] std::uint64_t digest() const { return digest_; }

  private:
    /// Thrown out of a box: the program is killed while it is open.
    struct Killed {};
    /// What a killed run has left unsaved.
    struct Unsaved {
        CardDocument card;
        std::filesystem::path file;
    };
    /// A chooser that was up, and what was chosen in it; empty if it was cancelled.
    struct Chosen {
        bool isToOpen = false;
        std::string name;
    };
    struct Asked {
        std::string text;
        toolkit::Answer answer = toolkit::Answer::Ok;
    };
    using Act = void (Monkey::*)();
    struct Choice {
        int weight = 0;
        Act act = nullptr;
    };

    // The dice.
    std::size_t pick(std::size_t count);
    bool chance(int percent) { return pick(100) < static_cast<std::size_t>(percent); }
    template <typename List>
    const auto& oneOf(const List& list) {
        return list[pick(std::size(list))];
    }
    void draw(std::span<const Choice> choices);

    // The course of events.
    void setUpHome(const Course& course);
    void step();
    void act();
    [[nodiscard]] Zevlin& zevlin() { return *zevlin_; }

    // Boxes.
    toolkit::Answer answerBox(const toolkit::MessageBox& box);
    toolkit::Answer answerFor(const toolkit::MessageBox& box);
    toolkit::Answer answerRescue(const toolkit::MessageBox& box);
    std::string answerInputBox(const toolkit::InputBox& box);
    std::filesystem::path answerFileQuestion();
    void answerPopupMenu(std::span<const toolkit::PopupRow> rows);
    void actInChooser() override;
    void chooseName(const std::string& name);
    void chooseRow();
    void workOnRow();
    void renameRow(const std::string& name, const std::string& newName);
    void noteDeleted(const std::string& name);
    void killMaybe();
    [[nodiscard]] std::optional<toolkit::Answer> answerTo(std::string_view text) const;
    [[nodiscard]] std::string lastChosen(bool isToOpen) const;

    // Fields.
    void clickAMark();
    void clickAText();
    void typeSome();
    void editByKey();
    void typeSuit();
    void leaveField();
    void styleByKey();
    void styleByPopup();
    void undoTyping();
    void copySome();
    void pasteSome();
    void copyElsewhere();
    void walkByKey();
    void spaceOnCard();
    void noteEdited();
    void noteStyle(int key);
    void noteCopy();
    void notePaste();
    [[nodiscard]] toolkit::TextBox* box();
    [[nodiscard]] bool isInBox();
    [[nodiscard]] bool isCleanHit(FormTest::CardPoint point, const toolkit::Label* wanted);

    // Commands.
    void moveCard();
    void zoomSome();
    void changeTextOptions();
    void chooseColor();
    void nameSomebody();
    void makeNew();
    void saveIt();
    void saveItAs();
    void openOne();
    void printOrExport();
    void setUpPrinter();
    void showHelp();
    void exchangePrinters();
    void passTime();
    void shiftTheWindow();
    void switchTrace();
    void finishQuestion();
    void finishSave();
    [[nodiscard]] bool givesPartnerUp() const;
    [[nodiscard]] bool noteSaved(const std::string& name);
    [[nodiscard]] std::optional<CardDocument> onDisk(const std::string& name) const;
    bool choose(std::string_view item);

    // Events whose effect can't be foreseen exactly: they may change one mark or the open field,
    // and nothing else.
    void doAnything();
    void adopt();

    // Design mode.
    void enterDesign();
    void leaveDesign();
    void design();
    void dragInDesign();
    void addInDesign();
    void keyInDesign();
    void choosePen();
    void recordTabs();
    void autoAdjust();
    void saveDesign();

    // Trouble, other programs, lives and deaths.
    void bringTrouble();
    void mendTrouble();
    void workBehind();
    void runSecondCopy();
    void endSecondCopy();
    void killIt();
    void exitIt();
    void noteKilled();
    void noteEnded();
    CardDocument stored(const CardDocument& card);
    void expectRescued(const CardDocument& card);
    void startAgain();
    bool tryToStart(const std::string& commandLine);
    void forgetGivenUp();
    void checkStarted(const std::string& commandLine);
    void openedNow(const std::string& name);

    // What must hold.
    void check();
    void syncOpenField();
    void checkCard();
    void checkJournal();
    void checkRules();
    void checkTrace();
    [[nodiscard]] bool refusesJobs() const;
    void checkDisk();
    [[nodiscard]] std::vector<std::string> takeErrors();

    std::mt19937 random_;
    std::uint64_t digest_ = 0;
    int events_ = 0;
    std::string doing_;               ///< what the present event is
    std::deque<std::string> history_; ///< the last ones

    std::unique_ptr<Zevlin> zevlin_;
    std::unique_ptr<Zevlin> secondCopy_;
    CardAccount account_;
    std::map<std::string, std::optional<CardDocument>> files_; ///< none: not a card any more
    std::vector<Unsaved> unsaved_;                             ///< the oldest first
    std::unique_ptr<Troubles> troubles_;
    std::string baseLayout_;
    int baseMarks_ = 0;
    int baseTexts_ = 0;

    // What the present event has met.
    std::vector<Asked> asked_;
    std::vector<Chosen> chosen_;
    std::string inputAnswer_;
    int popupRow_ = -1;
    bool mayKill_ = false;
    bool badTarget_ = false;
    bool badCard_ = false;
    CardPartner mine_; ///< the player's own name, as the options have it
    std::size_t traceSeen_ = 0;
    bool isSettled_ = false; ///< the question about unsaved changes has had its consequences
    bool isStarting_ = false;
    bool adoptNow_ = false;
    std::size_t rescuesAsked_ = 0;
    std::optional<std::size_t> rescued_;
    std::vector<std::size_t> givenUp_;

    bool wasDesigning_ = false;
    bool journalDoubtful_ = false; ///< it couldn't be written for a while
    std::string elsewhere_;        ///< what the system's clipboard has, if not the program's copy
    int deaths_ = 0;
    int secondCopies_ = 0;
    int rescues_ = 0;
    int saves_ = 0;
    int jobs_ = 0;
    int troubleCount_ = 0;
};

} // namespace zev::test
