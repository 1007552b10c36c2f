#include "cards/check_cards.h"

#include "cards/cards_test.h"

namespace zev {
namespace {

class CheckCards : public test::CardsTest {};

TEST_F(CheckCards, SaysNothingOfGoodCards) {
    writeCardFile("club/a.zev");
    writeCardFile("club/b.zev");
    EXPECT_EQ(run({"check", at("club")}), 0);
    EXPECT_EQ(out + err, "");
}

TEST_F(CheckCards, TellsFileLineAndFaultAndGoesOn) {
    const std::string cut = write("club/a.zev", "\"\",\"\"\n2\n1,1\n2");
    writeCardFile("club/b.zev");
    const std::string twice =
        write("club/c.zev", "' Program version: 2\n\"\",\"\"\n2\n1,1,0\n1,1,0\n"
                            "1\n1,\"\",0\n");
    EXPECT_EQ(run({"check", at("club")}), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, cut + ":4: the file ends before check box 2 of 2\n" + twice +
                       ":5: check box 1 comes again\n");
}

TEST_F(CheckCards, TellsMissingFilesAndGoesOn) {
    const std::string card = writeCardFile("a.zev");
    EXPECT_EQ(run({"check", at("none.zev"), card, at("nowhere")}), 1);
    EXPECT_EQ(err, at("none.zev") + ": File not found\n" + at("nowhere") + ": File not found\n");
}

} // namespace
} // namespace zev
