#include "help/help_text.h"

#include <algorithm>
#include <array>
#include <iterator>

#include <gtest/gtest.h>

namespace {

constexpr std::string_view closingLine = "(To close this window, press 'Esc' or 'Enter')";

zev::HelpText page() {
    return zev::helpText({.programVersion = "2.0.7",
                          .dataFolder = "/home/joe/Documents/ZEV",
                          .webAddress = "https://cards.example",
                          .supportAddress = "help@cards.example"});
}

std::ptrdiff_t indexOf(const std::vector<std::string>& lines, std::string_view line) {
    const auto found = std::find(lines.begin(), lines.end(), line);
    return found == lines.end() ? -1 : std::distance(lines.begin(), found);
}

bool contains(const std::vector<std::string>& lines, std::string_view part) {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const auto& line) { return line.find(part) != std::string::npos; });
}

TEST(HelpText, BeginsWithHowToCloseAndPrintItAndTheVersion) {
    EXPECT_EQ(page().lines.front(),
              "(To close this window, press 'Esc' or 'Enter'.  To print this page, RIGHT-click "
              "this line.)               Version: 2.0.7");
}

TEST(HelpText, EndsWithHowToCloseIt) { EXPECT_EQ(page().lines.back(), closingLine); }

TEST(HelpText, ASectionNeedsNoLineFeedAtItsEnd) {
    using Lines = std::vector<std::string_view>;
    EXPECT_EQ(zev::linesOf(""), Lines{});
    EXPECT_EQ(zev::linesOf("one\n\ntwo\n"), (Lines{"one", "", "two"}));
    EXPECT_EQ(zev::linesOf("one\ntwo"), (Lines{"one", "two"}));
}

TEST(HelpText, SectionsComeInOrder) {
    constexpr std::array<std::string_view, 12> titles{
        "MOVING THE CARD WITH THE MOUSE",
        "MOVING THE CARD WITH THE KEYBOARD",
        "CHECKING BOXES AND CIRCLING LEADS",
        "ENTERING TEXT",
        "DISK FILES",
        "PRINTING",
        "THE OPTIONS MENU",
        "CHANGING THE CARD LAYOUT WITH THE 'DESIGN' MENU",
        "DEFINING OR CHANGING THE 'TAB' SEQUENCE",
        "SAVING OR DISCARDING THE UPDATED DESIGN AND / OR TAB SEQUENCE",
        "MOVING MANY THINGS AT ONCE",
        "REPORTING PROBLEMS"};
    const auto lines = page().lines;
    std::ptrdiff_t previous = 0;
    for (const auto title : titles) {
        const auto index = indexOf(lines, title);
        EXPECT_GT(index, previous) << title;
        previous = index;
    }
}

TEST(HelpText, SaysThePlayersCommandsInTheWordsThatPlayersKnow) {
    const auto lines = page().lines;
    for (const std::string_view line :
         {"  * Turn the center wheel of a wheel-mouse to move the card up or down.",
          "  * The Home, End, PageUp, and PageDown keys move to the four corners of the card",
          "  * If you TAB to a checkmark, you can press SPACE to toggle it. (Shift-TAB moves "
          "backwards.)",
          "  * Boldface: Ctrl+B; Italics: Ctrl+I; Left-justify: Ctrl+L; Highlight: Ctrl+G. They "
          "toggle and are on the right-click popup menu.",
          "  * Suit Symbols: F5=Club, F6=Diamond, F7=Heart, F8=Spade.  They display as  ^c  ^d  ^h "
          " ^s  while being edited.",
          "  * Ctrl+Z restores the current text area to its previous contents and settings.  This "
          "is a one-level UNDO.",
          "      * This is the ONLY correct way to open existing cards. Don't try to open them in "
          "Windows Explorer.",
          "  * The path to your ZEV files is shown at the bottom of the list. Left-clicking it "
          "will open that folder.",
          "  * Your cards, settings, and exported card images are stored in 'My Documents\\ZEV' or "
          "'Documents\\ZEV'."}) {
        EXPECT_GT(indexOf(lines, line), 0) << line;
    }
}

TEST(HelpText, SaysHowToPrintAndWhatTheOptionsDo) {
    const auto lines = page().lines;
    for (const std::string_view line :
         {"  * The 'Print' options on the File menu print immediately, so use 'Printer Setup' "
          "first, if needed.",
          "  * 'Printer Setup' settings are remembered within a session, but not from one session "
          "to the next.",
          "  * ZEV prints in color or black (not grayscale) based on the printer's capabilities "
          "and current settings.",
          "       * select 'Use alternate print method' on the OPTIONS menu, then use 'Printer "
          "Setup' again.",
          "       Otherwise, the printed Partner's card will show the name of the card (the file "
          "name).",
          "  * 'Zoom' and 'Fit' only affect the screen image size; the card always prints at about "
          "8 x 8-1/2 inches.",
          "       * 'Custom...' lets you select one (non-ACBL compliant) color for all Text and "
          "Marks."}) {
        EXPECT_GT(indexOf(lines, line), 0) << line;
    }
}

TEST(HelpText, SaysHowToChangeTheLayoutAndThatItMustBeSaved) {
    const auto lines = page().lines;
    for (const std::string_view line :
         {"        NOTE: The original colors are the ACBL's, and they have specific meanings "
          "(red=Alertable, blue=NT)",
          "  * To remove something from the design, just drag it off any edge of the card image.",
          "  * Changing the on-screen card size (Zooming) or Exiting the program discards all "
          "unsaved changes.",
          "       * It works best when the card is Zoomed to screen width or larger and 'fill-in "
          "checkmarks' is not in use.",
          "  *** After modifying the design, you must use 'Save Design' on the Design Menu to make "
          "the changes permanent.",
          "  *** Changing on-screen card size or exiting the program will discard unsaved design "
          "changes.",
          "  *** The program will NOT warn you about losing unsaved design changes."}) {
        EXPECT_GT(indexOf(lines, line), 0) << line;
    }
}

/// The page from one title to the next, its lines joined by blanks.
std::string chapter(std::string_view title, std::string_view next) {
    const auto lines = page().lines;
    std::string text;
    for (auto line = indexOf(lines, title) + 1; line < indexOf(lines, next); ++line) {
        const std::string& words = lines[static_cast<std::size_t>(line)];
        text += ' ' + words.substr(std::min(words.find_first_not_of(' '), words.size()));
    }
    return text;
}

bool holds(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

TEST(HelpText, ShowingTheDesignMenuIsSaidToShowAllMarks) {
    const auto design = chapter("CHANGING THE CARD LAYOUT WITH THE 'DESIGN' MENU",
                                "DEFINING OR CHANGING THE 'TAB' SEQUENCE");
    EXPECT_TRUE(holds(design, "As soon as it is shown, 'Show all Marks' is on"));
    EXPECT_TRUE(holds(design, "'Show all Marks' (Ctrl+A) to go back to normal"));
}

TEST(HelpText, ZoomAndFitAreSaidToStandInTheViewMenuWithTheirKeys) {
    const auto options =
        chapter("THE OPTIONS MENU", "CHANGING THE CARD LAYOUT WITH THE 'DESIGN' MENU");
    EXPECT_TRUE(holds(options, "They are on the View menu.  Ctrl and + (the = key)"));
    EXPECT_TRUE(holds(options, "Ctrl and - makes it smaller, and Ctrl+0 fits it"));
    EXPECT_TRUE(holds(options, "press F1"));
}

TEST(HelpText, SaysHowTheWalkBeginsWithoutAMouse) {
    const auto marks = chapter("CHECKING BOXES AND CIRCLING LEADS", "ENTERING TEXT");
    EXPECT_TRUE(holds(marks, "F2 ('Go to first field' on the View menu)"));
}

TEST(HelpText, SaysHowToCopyCutAndPaste) {
    const auto text = chapter("ENTERING TEXT", "DISK FILES");
    for (const std::string_view key : {"Ctrl+C", "Ctrl+X", "Ctrl+V"})
        EXPECT_TRUE(holds(text, key)) << key;
}

TEST(HelpText, SaysWhatOpenAndCancelLeaves) {
    EXPECT_TRUE(
        holds(chapter("DISK FILES", "PRINTING"), "If you click 'Cancel', you have an empty card."));
}

TEST(HelpText, SaysHowToMakeAPdfFileAndWhoseCardEachPngIs) {
    const auto printing = chapter("PRINTING", "THE OPTIONS MENU");
    EXPECT_TRUE(holds(printing, "your own card (Ctrl+P)"));
    EXPECT_TRUE(holds(printing, "'Print to PDF' in 'Printer Setup'"));
    EXPECT_TRUE(holds(printing, "'PNG' under 'Export Image' saves your partner's card, and 'PNG' "
                                "under 'Export Partner Image' saves your own."));
}

TEST(HelpText, NormalInstructionsEndWithTheLinkAndARule) {
    const auto help = page();
    const auto link = static_cast<std::size_t>(help.moreInformationLine);
    EXPECT_EQ(help.lines[link], "MORE INFORMATION: Please see the \"FAQ\" at https://cards.example "
                                "(click here to access)");
    const auto end = indexOf(help.lines, std::string(50, ' ') + "(End of normal instructions)");
    ASSERT_GT(end, help.moreInformationLine);
    EXPECT_EQ(help.lines[static_cast<std::size_t>(end) + 1], std::string(96, '_'));
    EXPECT_EQ(help.lines[static_cast<std::size_t>(end) + 2], closingLine);
    EXPECT_LT(end, indexOf(help.lines, "CHANGING THE CARD LAYOUT WITH THE 'DESIGN' MENU"));
    EXPECT_LT(indexOf(help.lines, "THE OPTIONS MENU"), help.moreInformationLine);
}

TEST(HelpText, ReportsNameTheMailboxTheFolderAndTheWebsite) {
    const auto help = page();
    const auto title = indexOf(help.lines, "REPORTING PROBLEMS");
    EXPECT_TRUE(contains(help.lines, "help@cards.example"));
    const auto folder =
        indexOf(help.lines, "       These files are in this folder: /home/joe/Documents/ZEV");
    EXPECT_GT(folder, title);
    EXPECT_GT(help.websiteLine, folder);
    EXPECT_EQ(help.lines[static_cast<std::size_t>(help.websiteLine)],
              "  * Website (click here): https://cards.example -- good place to check the 'FAQ' "
              "for known solutions.");
}

TEST(HelpText, FolderMayLookLikeAPlaceholder) {
    const auto help = zev::helpText({.programVersion = "2.0.0",
                                     .dataFolder = "/home/{support}/{folder}",
                                     .webAddress = "w",
                                     .supportAddress = "s"});
    EXPECT_GT(
        indexOf(help.lines, "       These files are in this folder: /home/{support}/{folder}"), 0);
}

TEST(HelpText, LeavesNoPlaceholderStanding) {
    EXPECT_FALSE(contains(page().lines, "{"));
    EXPECT_FALSE(contains(page().lines, "}"));
}

} // namespace
