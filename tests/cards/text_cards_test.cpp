#include "cards/text_cards.h"

#include "cards/cards_test.h"

namespace zev {
namespace {

class TextCards : public test::CardsTest {};

TEST_F(TextCards, TellsWhatIsFilledInByName) {
    CardDocument card = someCard();
    card.partner = {"Ann \"A\" Lee", "1234567"};
    card.texts[2] = {"", 8};
    const std::string file = writeCardFile("a.zev", card);
    EXPECT_EQ(run({"text", file}), 0);
    EXPECT_EQ(out, file +
                       "\n"
                       "  Partner's name: Ann \"A\" Lee\n"
                       "  Partner's number: 1234567\n"
                       "  General approach, very light openings: yes\n"
                       "  General approach, description: 1\u2663 & 2\u2665\n"
                       "  General approach, other forcing opening, description: (highlighted)\n");
}

TEST_F(TextCards, AnEmptyLineStandsBetweenCards) {
    const std::string first = writeCardFile("a.zev");
    const std::string second = writeCardFile("b.zev");
    EXPECT_EQ(run({"text", first, second}), 0);
    const std::string fields = "\n  General approach, very light openings: yes\n"
                               "  General approach, description: 1\u2663 & 2\u2665\n";
    EXPECT_EQ(out, first + fields + "\n" + second + fields);
}

TEST_F(TextCards, AValueStaysOnItsLine) {
    const std::string file =
        write("a.zev", "' Program version: 2.1.0\n\"\",\"\"\n1\n1,0,0\n1\n1,\"a\nb\",0\n");
    EXPECT_EQ(run({"text", file}), 0);
    EXPECT_EQ(out, file + "\n  Names, both partners: a\\nb\n");
}

TEST_F(TextCards, TellsCardsAsJson) {
    CardDocument card = someCard();
    card.partner.name = "Ann";
    card.texts[1].switches = 8;
    const std::string file = writeCardFile("Two Over One.zev", card);
    const std::string object =
        "{\n    \"file\": " + jsonText(file) +
        ",\n    \"card\": \"Two Over One\",\n"
        "    \"partner\": {\"name\": \"Ann\", \"number\": \"\"},\n    \"fields\": [\n"
        "      {\"name\": \"General approach, very light openings\", \"kind\": \"mark\", "
        "\"number\": 3, \"value\": true},\n"
        "      {\"name\": \"General approach, description\", \"kind\": \"text\", \"number\": 2, "
        "\"value\": \"1\u2663 & 2\u2665\", \"highlighted\": true}\n    ]\n  }";
    EXPECT_EQ(run({"text", "--json", file, file}), 0);
    EXPECT_EQ(out, "[\n  " + object + ",\n  " + object + "\n]\n");
}

TEST_F(TextCards, ADamagedCardIsToldAndTheRestGoesOn) {
    const std::string bad = write("bad.zev", "\"\",\"\"\n0\n");
    const std::string good = writeCardFile("good.zev");
    EXPECT_EQ(run({"text", bad, good}), 1);
    EXPECT_EQ(err, bad + ":2: a card without check boxes\n");
    EXPECT_TRUE(out.starts_with(good + "\n"));
    EXPECT_EQ(run({"text", "--json", bad}), 1);
    EXPECT_EQ(out, "[]\n");
}

TEST_F(TextCards, ACardOfTheDataFolderGoesByItsName) {
    writeCardFile("ZEV/Ann.zev");
    EXPECT_EQ(run({"text", "ann"}), 0);
    EXPECT_TRUE(out.starts_with(at("ZEV/Ann.zev") + "\n")) << out;
}

TEST_F(TextCards, TakesNoFolder) {
    writeCardFile("club/a.zev");
    EXPECT_EQ(run({"text", at("club")}), 1);
    EXPECT_EQ(err, at("club") + ": a folder, where a card should stand\n");
}

} // namespace
} // namespace zev
