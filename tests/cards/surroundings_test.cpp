#include "cards/surroundings.h"

#include "cards/cards_test.h"

namespace zev {
namespace {

class CardNames : public test::CardsTest {
  protected:
    void SetUp() override {
        first = write("1.zev", "");
        second = write("2.zev", "");
    }

    /// The complaints of a check of two empty files.
    [[nodiscard]] std::string both() const {
        return first + ":1: the file ends before the partner's name\n" + second +
               ":1: the file ends before the partner's name\n";
    }

    std::string first;
    std::string second;
};

TEST_F(CardNames, ComeOneALineFromTheStandardInput) {
    EXPECT_EQ(run({"check", "--files-from", "-"}, first + "\n\n" + second), 1);
    EXPECT_EQ(err, both());
}

TEST_F(CardNames, ComeFromAFileBehindThoseOfTheCommandLine) {
    const std::string names = write("names", second + "\n");
    EXPECT_EQ(run({"check", "--files-from", names, first}), 1);
    EXPECT_EQ(err, both());
}

TEST_F(CardNames, EndWithANullWhereThatIsAsked) {
    EXPECT_EQ(run({"check", "-0", "--files-from", "-"}, first + '\0' + at("a\nb") + '\0'), 1);
    EXPECT_EQ(err, first + ":1: the file ends before the partner's name\n" + at("a\\nb") +
                       ": File not found\n");
}

TEST_F(CardNames, AListThatCantBeReadIsTrouble) {
    EXPECT_EQ(run({"check", "--files-from", at("none")}), 2);
    EXPECT_EQ(err, "zevlin-cards: " + at("none") + ": can't be read\n");
    EXPECT_EQ(run({"check", "--files-from", folder.string()}), 2);
}

TEST_F(CardNames, AnEmptyListIsNoFailure) {
    EXPECT_EQ(run({"check", "--files-from", "-"}, ""), 0);
    EXPECT_EQ(run({"check", "--files-from", write("names", "")}), 0);
}

TEST_F(CardNames, MayBeMany) {
    const std::string card = writeCardFile("a.zev");
    std::string names;
    for (int i = 0; i < 20000; ++i) names += card + "\n";
    EXPECT_EQ(run({"check", "--files-from", "-"}, names), 0);
    EXPECT_EQ(err, "");
}

TEST_F(CardNames, ACardTooLargeIsToldAndTheRestGoesOn) {
    std::filesystem::resize_file(pathOf(first), std::uintmax_t{257} << 20);
    EXPECT_EQ(run({"check", first, second}), 1);
    EXPECT_EQ(err, first + ": Out of memory\n" + second +
                       ":1: the file ends before the partner's name\n");
}

} // namespace
} // namespace zev
