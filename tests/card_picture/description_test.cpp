#include "card_picture/layout_reader.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace card_picture {
namespace {

/// The printed words alone, one blank between them.
std::string printedWords() {
    std::string words;
    for (const std::string& line : linesOf(fileBytes(CARD_DESCRIPTION))) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start == std::string::npos || line[start] == '#') continue;
        std::string text =
            std::regex_replace(line, std::regex(R"(^ *(row|bar|head|caption) )"), "");
        if (text == line) continue;
        text = std::regex_replace(text, std::regex(R"(\{(red|blue) )"), "");
        text = std::regex_replace(text, std::regex(R"(\[[^\]]*\]|<[^>]*>|@[^=]*=!?)"), " _ ");
        words += std::regex_replace(text, std::regex(R"([*~^|}>\\])"), "") + " ";
    }
    return std::regex_replace(words, std::regex(" +"), " ");
}

void expectWords(const std::vector<std::string>& wanted) {
    static const std::string words = printedWords();
    for (const std::string& phrase : wanted)
        EXPECT_NE(words.find(phrase), std::string::npos) << phrase;
}

TEST(Description, HasTheWordsOfTheOpenings) {
    expectWords({"NAMES _", "GENERAL APPROACH _",
                 "Two Over One: Game Forcing _ Game Forcing Except When Suit Rebid _",
                 "VERY LIGHT: Openings _ 3rd Hand _ Overcalls _ Preempts _",
                 "FORCING OPENING: 1♣ _ 2♣ _ Natural 2 Bids _ Other _ _", "NOTRUMP OPENING BIDS",
                 "1NT _ to _ _ to _",
                 "5-card Major common _ System on over _ 2♣ Stayman _ Puppet _ 2♦ Transfer to ♥ _ "
                 "Forcing Stayman _ "
                 "2♥ Transfer to ♠ _ 2♠ _ 2NT _",
                 "3♣ _ 3♦ _ 3♥ _ 3♠ _ 4♦, 4♥ Transfer _ Smolen _ Lebensohl _ ( _ denies) Neg. "
                 "Double _ : _ Other: _",
                 "2NT _ to _ Puppet Stayman _ Transfer Responses: Jacoby _ Texas _ 3♠ _ 3NT _ to _ "
                 "One suit _ _ "
                 "Conventional NT openings _ _"});
}

TEST(Description, HasTheWordsOfMajorsAndMinors) {
    expectWords(
        {"MAJOR OPENING Expected Min. Length 5 4 1st/2nd _ _ 3rd/4th _ _ RESPONSES",
         "Double Raise: Force _ Inv. _ Weak _ After Overcall: Force _ Inv. _ Weak _ "
         "Conv. Raise: 2NT _ 3NT _ Splinter _ Other: _",
         "1NT: Forcing _ Semi-forcing _ 2NT: Forcing _ Inv. _ _ to _ 3NT: _ to _ Drury _ : Reverse "
         "_ 2-Way _ "
         "Fit _ Other: _",
         "MINOR OPENING Expected Min. Length 4 3 0-2 Conv. 1♣ _ _ _ _ 1♦ _ _ _ _ RESPONSES",
         "Forcing Raise: J/S in other minor _ Single raise _ Other: _ Frequently bypass 4+♦ _ "
         "1NT/1♣ _ to _ 2NT Forcing _ Inv. _ _ to _ 3NT: _ to _ Other: _"});
}

TEST(Description, HasTheWordsOfTheTwoLevel) {
    expectWords(
        {"DESCRIBE 2♣ _ to _ HCP Strong _ Other _ _ RESPONSES / REBIDS 2♦ Neg _ Waiting _ _ _"});
    for (const std::string suit : {"♦", "♥", "♠"})
        expectWords({"2" + suit +
                     " _ to _ HCP Natural: Weak _ Intermediate _ Strong _ Conv. _ _ 2NT Force _ "
                     "New Suit NF _ _"});
    expectWords({"OTHER CONV. CALLS _ New Minor Forcing _ 2-Way NMF _ Weak Jump Shifts: In Comp. _ "
                 "Not in Comp. _ "
                 "4th Suit Forcing: 1 Rd. _ Game _ _ _"});
}

TEST(Description, HasTheWordsOfCompetition) {
    expectWords(
        {"SPECIAL DOUBLES After Overcall: Penalty _ _ Negative _ thru _ Responsive _ thru _ "
         "Maximal _ "
         "Support: Dbl. _ thru _ Redbl. _ Card-showing _ Min. Offshape T/O _ _",
         "SIMPLE OVERCALL 1 level _ to _ HCP (usually) often 4 cards _ very light style _ "
         "Responses "
         "New Suit: Forcing _ NFConst _ NF _ Jump Raise: Forcing _ Inv. _ Weak _",
         "JUMP OVERCALL Strong _ Intermediate _ Weak _ _",
         "OPENING PREEMPTS 3/4-bids Sound _ Light _ Very Light _ "
         "Conv./Resp. _",
         "DIRECT CUEBID Minor Major Natural _ _ Strong T/O _ _ Michaels _ _ _",
         "SLAM CONVENTIONS Gerber _ 4NT: Blackwood _ RKC _ 1430 _ _ vs Interference: DOPI _ DEPO _ "
         "Level: _ ROPI _",
         "NOTRUMP OVERCALLS Direct: _ to _ Systems on _ Conv. _ _ Balancing: _ to _ Jump to 2NT: "
         "Minors _ "
         "2 Lowest _ Conv. _ _",
         "DEFENSE VS NOTRUMP vs: _ _ 2♣ _ _ 2♦ _ _ 2♥ _ _ 2♠ _ _ Dbl _ _ Other _",
         "OVER OPP'S T/O DOUBLE New Suit Forcing: 1 level _ 2 level _ Jump Shift: Forcing _ Inv. _ "
         "Weak _ "
         "Redouble implies no fit _ 2NT over Limit+ Limit Weak Majors _ _ _ Minors _ _ _ Other _",
         "VS OPENING PREEMPTS, DOUBLE IS Takeout _ thru _ Penalty _ Conv. Takeout: _ Lebensohl 2NT "
         "Response _ Other _"});
}

TEST(Description, HasTheWordsOfTheDefense) {
    expectWords({"LEADS (circle card led, if not in bold) versus Suits", "versus Notrump",
                 "LENGTH LEADS vs SUITS vs NT 4th Best: _ _ 3rd/5th Best: _ _ Attitude: _",
                 "DEFENSIVE CARDING vs SUITS vs NT Standard _ _ Except _ _ _ Upside-Down: count _ "
                 "_ attitude _ _ "
                 "FIRST DISCARD Lavinthal _ _ Odd/Even _ _ _ OTHER CARDING Smith Echo _ _ Trump "
                 "Suit Pref. _ "
                 "Foster Echo _ _",
                 "Primary signal to partner's leads: Attitude _ Count _ Suit preference _ SPECIAL "
                 "CARDING _ PLEASE ASK"});
}

TEST(Description, HasTheCardsOfEachHolding) {
    expectWords({" _ A _ K _ x", " _ K _ Q _ x", " _ Q _ J _ x", " _ J _ T _ 9", " _ K _ Q _ T _ 9",
                 " _ T _ 9 _ x", " _ K _ J _ T _ x", " _ K _ T _ 9 _ x", " _ Q _ T _ 9 _ x",
                 " _ A _ K _ J _ x", " _ A _ J _ T _ 9", " _ K _ Q _ J _ x", " _ Q _ J _ T _ x",
                 " _ J _ T _ 9 _ x", " _ A _ Q _ J _ x", " _ A _ T _ 9 _ x", " _ T _ 9 _ 8 _ x",
                 " _ x _ x _ x _ x _ x"});
}

std::set<std::string> namesOfColour(int colour) {
    std::set<std::string> names;
    for (const auto& [name, number] : fieldNumbers("mark"))
        if (layout(15).marks.at(static_cast<std::size_t>(number - 1)).colour == colour)
            names.insert(name);
    for (const auto& [name, number] : fieldNumbers("text"))
        if (layout(15).texts.at(static_cast<std::size_t>(number - 1)).colour == colour)
            names.insert(name);
    return names;
}

TEST(Description, AnnouncedFieldsAreBlue) {
    EXPECT_EQ(namesOfColour(3),
              (std::set<std::string>{"1nt.low", "1nt.high", "1nt.second.low", "1nt.second.high",
                                     "1nt.transfer_hearts", "1nt.transfer_spades", "1nt.texas",
                                     "2nt.jacoby", "2nt.texas", "major.1nt.semi", "minor.club.2",
                                     "minor.diamond.2"}));
}

TEST(Description, AlertableFieldsAreRed) {
    EXPECT_EQ(namesOfColour(2), (std::set<std::string>{"light.preempts",
                                                       "forcing.club",
                                                       "forcing.other",
                                                       "forcing.what",
                                                       "1nt.puppet",
                                                       "1nt.forcing_stayman",
                                                       "1nt.two_spades",
                                                       "1nt.two_notrump",
                                                       "1nt.three_clubs",
                                                       "1nt.three_diamonds",
                                                       "1nt.three_hearts",
                                                       "1nt.three_spades",
                                                       "1nt.smolen",
                                                       "1nt.lebensohl",
                                                       "1nt.denies",
                                                       "1nt.negative_double",
                                                       "1nt.negative_level",
                                                       "2nt.puppet",
                                                       "2nt.three_spades",
                                                       "3nt.one_suit",
                                                       "nt.conventional_1",
                                                       "nt.conventional_2",
                                                       "major.double.force",
                                                       "major.double.weak",
                                                       "major.overcalled.force",
                                                       "major.raise.2nt",
                                                       "major.raise.3nt",
                                                       "major.raise.splinter",
                                                       "major.raise.other",
                                                       "major.drury.fit",
                                                       "minor.club.conv",
                                                       "minor.diamond.conv",
                                                       "minor.double.force",
                                                       "minor.double.weak",
                                                       "minor.overcalled.force",
                                                       "minor.raise.jump",
                                                       "minor.raise.single",
                                                       "minor.raise.other",
                                                       "2c.other",
                                                       "2c.waiting",
                                                       "2d.strong",
                                                       "2d.conv",
                                                       "2d.new_suit",
                                                       "2h.strong",
                                                       "2h.conv",
                                                       "2h.new_suit",
                                                       "2s.strong",
                                                       "2s.conv",
                                                       "2s.new_suit",
                                                       "other.two_way",
                                                       "other.jump.free",
                                                       "other.fourth.game",
                                                       "double.penalty",
                                                       "double.penalty.what",
                                                       "double.maximal",
                                                       "double.cards",
                                                       "overcall.four",
                                                       "overcall.light",
                                                       "overcall.forcing",
                                                       "overcall.raise.forcing",
                                                       "jump.strong",
                                                       "jump.intermediate",
                                                       "preempt.very_light",
                                                       "preempt.responses",
                                                       "cue.natural.minor",
                                                       "cue.natural.major",
                                                       "cue.strong.minor",
                                                       "cue.strong.major",
                                                       "slam.rkc",
                                                       "slam.1430",
                                                       "ntover.conv",
                                                       "ntover.conv.what",
                                                       "ntover.jump",
                                                       "ntover.jump.what",
                                                       "todbl.jump.forcing",
                                                       "todbl.jump.invite",
                                                       "todbl.redouble",
                                                       "vspre.penalty",
                                                       "vspre.conv",
                                                       "vspre.lebensohl",
                                                       "length.third.suits",
                                                       "length.third.notrump",
                                                       "length.attitude.notrump",
                                                       "carding.attitude.suits",
                                                       "carding.attitude.notrump",
                                                       "discard.lavinthal.suits",
                                                       "discard.lavinthal.notrump",
                                                       "discard.odd_even.suits",
                                                       "discard.odd_even.notrump",
                                                       "other_carding.smith.suits",
                                                       "other_carding.smith.notrump",
                                                       "other_carding.trump",
                                                       "other_carding.foster"}));
}

} // namespace
} // namespace card_picture
