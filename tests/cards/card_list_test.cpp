#include "cards/card_list.h"

#include <algorithm>

#include "cards/cards_test.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

class CardListing : public test::CardsTest {
  protected:
    /// What one argument gives: cards and complaints by their paths below the folder.
    void list(const std::string& argument, bool takesFolders = true) {
        found.clear();
        complaints.clear();
        CardList cards(
            {.dataFolder = [this] { return dataFolder; },
             .installedFolder = [this] { return folder / "installed"; },
             .takesFolders = takesFolders},
            [this](const fs::path& card) { found.push_back(below(utf8Of(card))); },
            [this](const std::string& message) { complaints.push_back(below(message)); });
        cards.add(argument);
    }

    [[nodiscard]] std::string below(const std::string& text) const {
        std::string shorter = text;
        const std::string prefix = at("");
        for (auto place = shorter.find(prefix); place != std::string::npos;
             place = shorter.find(prefix))
            shorter.erase(place, prefix.size());
#ifdef _WIN32
        std::ranges::replace(shorter, '\\', '/');
#endif
        return shorter;
    }

    using Texts = std::vector<std::string>;
    Texts found;
    Texts complaints;
};

TEST_F(CardListing, TakesAFileWhateverItsExtension) {
    list(write("a card.txt", ""));
    EXPECT_EQ(found, Texts{"a card.txt"});
    EXPECT_EQ(complaints, Texts{});
}

TEST_F(CardListing, FindsANameInTheDataFolderWithAndWithoutExtension) {
    write("ZEV/Ann \xC3\x89.zev", "");
    list("Ann \xC3\x89");
    EXPECT_EQ(found, Texts{"ZEV/Ann \xC3\x89.zev"});
    list("ann \xC3\x89.ZEV");
    EXPECT_EQ(found, Texts{"ZEV/Ann \xC3\x89.zev"});
}

TEST_F(CardListing, AFileGoesBeforeANameInTheDataFolder) {
    write("ZEV/here.zev", "");
    list(write("here.zev", ""));
    EXPECT_EQ(found, Texts{"here.zev"});
}

TEST_F(CardListing, ASampleCardIsFoundWhereTheDataFolderHasNone) {
    writeCardFile("installed/Two Over One.zev");
    list("two over one");
    EXPECT_EQ(found, (Texts{"installed/Two Over One.zev"}));
    writeCardFile("ZEV/Two Over One.zev");
    list("Two Over One");
    EXPECT_EQ(found, (Texts{"ZEV/Two Over One.zev"}));
    list("Three Over One");
    EXPECT_TRUE(found.empty());
    EXPECT_EQ(complaints.size(), 1U);
}

TEST_F(CardListing, ANameOfTheDataFolderIsNoPath) {
    write("ZEV/inner/card.zev", "");
    list("inner/card");
    EXPECT_EQ(complaints, Texts{"inner/card: File not found"});
}

TEST_F(CardListing, TakesTheCardsOfAFolderAndThoseBelowItSorted) {
    for (const char* name :
         {"club/b.zev", "club/a.ZEV", "club/inner/c.zev", "club/notes.txt", "club/$$Tempcard.zev"})
        write(name, "");
    list(at("club"));
    EXPECT_EQ(found, (Texts{"club/a.ZEV", "club/b.zev", "club/inner/c.zev"}));
    EXPECT_EQ(complaints, Texts{});
}

TEST_F(CardListing, AFolderGivenAgainIsTakenAgain) {
    const std::string damaged = write("club/a.zev", "");
    EXPECT_EQ(run({"check", at("club"), at("club")}), 1);
    const std::string complaint = damaged + ":1: the file ends before the partner's name\n";
    EXPECT_EQ(err, complaint + complaint);
}

TEST_F(CardListing, ComplainsOfAFolderWithoutCards) {
    write("club/inner/notes.txt", "");
    list(at("club"));
    EXPECT_EQ(complaints, Texts{"club: no cards in this folder"});
}

TEST_F(CardListing, ComplainsOfAFolderWhereACardShouldStand) {
    write("club/a.zev", "");
    list(at("club"), false);
    EXPECT_EQ(found, Texts{});
    EXPECT_EQ(complaints, Texts{"club: a folder, where a card should stand"});
}

TEST_F(CardListing, ComplainsOfWhatIsNotThere) {
    list(at("none.zev"));
    EXPECT_EQ(complaints, Texts{"none.zev: File not found"});
    list("");
    EXPECT_EQ(complaints, Texts{": File not found"});
}

TEST_F(CardListing, TellsALineEndInANameByItsEscape) {
    list("two\nlines");
    EXPECT_EQ(complaints, Texts{"two\\nlines: File not found"});
}

TEST_F(CardListing, ComplainsOfANameWithANull) {
    list(std::string("a\0b", 3));
    EXPECT_EQ(complaints, Texts{"a\\x00b: Bad file name or number"});
}

#ifndef _WIN32
TEST_F(CardListing, AWildLetterFindsNoQuestionMark) {
    write("ZEV/?.zev", "");
    list("\xE2\x82\xBF");
    EXPECT_EQ(complaints, Texts{"\xE2\x82\xBF: File not found"});
}

TEST_F(CardListing, FollowsLinksButNotInACircle) {
    write("club/a.zev", "");
    fs::create_directory_symlink(folder / "club", folder / "club" / "loop");
    list(at("club"));
    EXPECT_EQ(found, Texts{"club/a.zev"});
    EXPECT_EQ(complaints, Texts{"club/loop: links that lead in a circle"});
}

TEST_F(CardListing, LinksThatLeadToEachOtherAreACircle) {
    fs::create_symlink(folder / "b.zev", folder / "a.zev");
    fs::create_symlink(folder / "a.zev", folder / "b.zev");
    list(at("a.zev"));
    EXPECT_EQ(complaints, Texts{"a.zev: links that lead in a circle"});
}

TEST_F(CardListing, AFolderReachedByTwoLinksIsWalkedOnce) {
    write("club/inner/a.zev", "");
    fs::create_directory_symlink(folder / "club" / "inner", folder / "club" / "other");
    list(at("club"));
    EXPECT_EQ(found, Texts{"club/inner/a.zev"});
    EXPECT_EQ(complaints, Texts{});
}

TEST_F(CardListing, ComplainsOfALinkToNothing) {
    write("club/a.zev", "");
    fs::create_symlink(folder / "gone", folder / "club" / "b.zev");
    list(at("club"));
    EXPECT_EQ(found, Texts{"club/a.zev"});
    EXPECT_EQ(complaints, Texts{"club/b.zev: File not found"});
}

TEST_F(CardListing, ADeviceIsNoCard) {
    list("/dev/null");
    EXPECT_EQ(complaints, Texts{"/dev/null: neither a file nor a folder"});
}

TEST_F(CardListing, TakesAFileWhoseNameIsNoUtf8) {
    list(write("\xFF.zev", ""));
    EXPECT_EQ(found, Texts{"\xFF.zev"});
}
#endif

} // namespace
} // namespace zev
