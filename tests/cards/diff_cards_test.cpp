#include "cards/diff_cards.h"

#include "cards/cards_test.h"

namespace zev {
namespace {

class DiffCards : public test::CardsTest {
  protected:
    void SetUp() override {
        left = writeCardFile("left.zev");
        CardDocument other = someCard();
        other.marks[2] = false;
        other.texts[1].text = "1^d";
        other.texts[2] = {"\"x\"", 8};
        right = writeCardFile("right.zev", other);
    }

    std::string left;
    std::string right;
};

TEST_F(DiffCards, SaysNothingOfCardsThatReadTheSame) {
    CardDocument bold = someCard();
    bold.partner = {"Ann", "1"};
    bold.texts[1] = {" 1^C & 2^h ", 7};
    const std::string same = writeCardFile("same.zev", bold);
    EXPECT_EQ(run({"diff", left, same}), 0);
    EXPECT_EQ(out + err, "");
}

TEST_F(DiffCards, TellsEachFieldThatDiffers) {
    EXPECT_EQ(run({"diff", left, right}), 1);
    EXPECT_EQ(err, "");
    EXPECT_EQ(out, "< " + left + "\n> " + right +
                       "\n"
                       "\nGeneral approach, very light openings\n< yes\n> -\n"
                       "\nGeneral approach, description\n< 1\u2663 & 2\u2665\n> 1\u2666\n"
                       "\nGeneral approach, other forcing opening, description\n< -\n"
                       "> \"x\" (highlighted)\n");
}

TEST_F(DiffCards, TellsThemAsJson) {
    EXPECT_EQ(run({"diff", "--json", left, right}), 1);
    EXPECT_EQ(out,
              "{\n  \"left\": " + jsonText(left) + ",\n  \"right\": " + jsonText(right) +
                  ",\n  \"differences\": [\n"
                  "    {\"name\": \"General approach, very light openings\", \"kind\": \"mark\", "
                  "\"number\": 3, \"left\": {\"value\": true}, \"right\": {\"value\": false}},\n"
                  "    {\"name\": \"General approach, description\", \"kind\": \"text\", "
                  "\"number\": 2, \"left\": {\"value\": \"1\u2663 & 2\u2665\"}, \"right\": "
                  "{\"value\": \"1\u2666\"}},\n"
                  "    {\"name\": \"General approach, other forcing opening, description\", "
                  "\"kind\": \"text\", \"number\": 3, \"left\": {\"value\": \"\"}, \"right\": "
                  "{\"value\": \"\\\"x\\\"\", \"highlighted\": true}}\n  ]\n}\n");
    EXPECT_EQ(run({"diff", "--json", left, left}), 0);
    EXPECT_TRUE(out.ends_with("\"differences\": []\n}\n")) << out;
}

TEST_F(DiffCards, ACardThatCantBeReadIsTrouble) {
    EXPECT_EQ(run({"diff", left, at("none.zev")}), 2);
    EXPECT_EQ(err, at("none.zev") + ": File not found\n");
    EXPECT_EQ(run({"diff", write("bad.zev", ""), left}), 2);
    EXPECT_EQ(err, at("bad.zev") + ":1: the file ends before the partner's name\n");
    EXPECT_EQ(run({"diff", folder.string(), left}), 2);
    EXPECT_EQ(out, "");
}

} // namespace
} // namespace zev
