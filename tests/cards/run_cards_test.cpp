#include "cards/run_cards.h"

#include <ostream>
#include <streambuf>

#include "cards/cards_test.h"

namespace zev {
namespace {

class RunCards : public test::CardsTest {};

/// Takes nothing, as a full disk.
class FullDisk : public std::streambuf {};

TEST_F(RunCards, TellsHelpOnTheOutput) {
    EXPECT_EQ(run({"--help"}), 0);
    EXPECT_TRUE(out.find("check") != std::string::npos);
    EXPECT_EQ(err, "");
}

TEST_F(RunCards, TellsAWrongCommandLineOnTheErrors) {
    EXPECT_EQ(run({"chek"}), 2);
    EXPECT_EQ(out, "");
    EXPECT_TRUE(err.starts_with("zevlin-cards: ")) << err;
}

TEST_F(RunCards, AnOutputThatTakesNothingIsTrouble) {
    FullDisk disk;
    std::ostream full(&disk);
    std::istringstream in;
    std::ostringstream wrong;
    const Surroundings surroundings{
        .in = in, .out = full, .err = wrong, .dataFolder = [this] { return dataFolder; }};
    EXPECT_EQ(runCards({"text", writeCardFile("a.zev")}, surroundings), 2);
    EXPECT_EQ(wrong.str(), "zevlin-cards: the output can't be written\n");
}

TEST_F(RunCards, ChangesNothingInTheDataFolder) {
    writeCardFile("ZEV/a.zev");
    writeCardFile("ZEV/b.zev");
    const auto before = std::filesystem::last_write_time(dataFolder);
    EXPECT_EQ(run({"text", "a"}), 0);
    EXPECT_EQ(run({"diff", "a", "b"}), 0);
    EXPECT_EQ(run({"check", "a", "b"}), 0);
    EXPECT_EQ(std::filesystem::last_write_time(dataFolder), before);
    using Entries = std::filesystem::directory_iterator;
    EXPECT_EQ(std::distance(Entries(dataFolder), Entries()), 2);
}

TEST_F(RunCards, AFileAsksForNoDataFolder) {
    EXPECT_EQ(run({"check", writeCardFile("a.zev")}), 0);
    EXPECT_EQ(folderQuestions, 0);
    EXPECT_EQ(run({"check", "none", "nothing"}), 1);
    EXPECT_EQ(folderQuestions, 1);
    EXPECT_FALSE(std::filesystem::exists(dataFolder));
}

} // namespace
} // namespace zev
