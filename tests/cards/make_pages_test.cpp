#include "cards/make_pages.h"

#include <algorithm>
#include <set>

#include "cards/cards_test.h"
#include "support/system.h"
#include "toolkit/base/files.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

class MakePages : public test::CardsTest {
  protected:
    MakePages() {
        test_system::clearVariable("SOURCE_DATE_EPOCH");
        worker = ZEVLIN_CARDS_PROGRAM;
    }

    [[nodiscard]] std::string contentOf(std::string_view name) const {
        return toolkit::readFile(folder / pathOf(name));
    }
    [[nodiscard]] bool exists(std::string_view name) const {
        return fs::exists(folder / pathOf(name));
    }
    [[nodiscard]] std::set<std::string> filesIn(std::string_view name) const {
        std::set<std::string> files;
        if (exists(name))
            for (const auto& entry : fs::directory_iterator(folder / pathOf(name)))
                files.insert(utf8Of(entry.path().filename()));
        return files;
    }
    static int pagesIn(const std::string& pdf) {
        int pages = 0;
        for (auto at = pdf.find("/Type /Page\n"); at != std::string::npos;
             at = pdf.find("/Type /Page\n", at + 1))
            ++pages;
        return pages;
    }
};

TEST_F(MakePages, AFileForEachCardOfAFolder) {
    writeCardFile("club/a.zev");
    writeCardFile("club/deep/b.zev");
    EXPECT_EQ(run({"pdf", "-o", at("out"), at("club")}), 0) << err;
    EXPECT_EQ(filesIn("out"), (std::set<std::string>{"a.pdf", "b.pdf"}));
    EXPECT_EQ(pagesIn(contentOf("out/a.pdf")), 1);
    EXPECT_EQ(out + err, "");
}

TEST_F(MakePages, BothCardsStandInOneFile) {
    const std::string card = writeCardFile("a.zev");
    EXPECT_EQ(run({"pdf", "--both", "-o", at("out"), card}), 0) << err;
    EXPECT_EQ(pagesIn(contentOf("out/a.pdf")), 2);
    EXPECT_EQ(run({"pdf", "--partner", "-o", at("out"), card}), 0) << err;
    EXPECT_EQ(pagesIn(contentOf("out/a - partner.pdf")), 1);
}

TEST_F(MakePages, AllPagesTogetherInTheOrderOfTheCards) {
    const std::string first = writeCardFile("b.zev");
    const std::string second = writeCardFile("a.zev");
    EXPECT_EQ(run({"pdf", "--both", "--together", at("all.pdf"), first, second, first}), 0) << err;
    EXPECT_EQ(pagesIn(contentOf("all.pdf")), 6);
}

TEST_F(MakePages, EachTypeOfImageInItsOwnFormat) {
    const std::string card = writeCardFile("a.zev");
    const auto begins = [&](const char* type, std::string_view beginning) {
        EXPECT_EQ(run({"image", "--type", type, "-o", at("out"), card}), 0) << err;
        EXPECT_TRUE(contentOf(std::string("out/a.") + type).starts_with(beginning)) << type;
    };
    begins("png", "\x89PNG");
    begins("gif", "GIF8");
    begins("jpg", "\xFF\xD8");
    begins("bmp", "BM");
}

TEST_F(MakePages, ADamagedCardIsToldAndTheRestGoesOn) {
    const std::string bad = write("bad.zev", "\"\",\"\"\n0\n");
    const std::string good = writeCardFile("good.zev");
    EXPECT_EQ(run({"pdf", "-o", at("out"), bad, at("none.zev"), good}), 1);
    EXPECT_EQ(err,
              at("none.zev") + ": File not found\n" + bad + ":2: a card without check boxes\n");
    EXPECT_EQ(filesIn("out"), (std::set<std::string>{"good.pdf"}));
    EXPECT_EQ(run({"pdf", "--together", at("all.pdf"), bad, good}), 1);
    EXPECT_EQ(pagesIn(contentOf("all.pdf")), 1);
    EXPECT_EQ(run({"pdf", "--together", at("nothing.pdf"), bad}), 1);
    EXPECT_FALSE(exists("nothing.pdf"));
}

TEST_F(MakePages, TwoCardsOfOneFileAreRefusedBeforeAnythingIsWritten) {
    const std::string first = writeCardFile("a/Ann.zev");
    const std::string second = writeCardFile("b/Ann.zev");
    EXPECT_EQ(run({"pdf", "-o", at("out"), writeCardFile("c.zev"), first, second}), 2);
    EXPECT_NE(err.find("would be made of " + first + " and of " + second), std::string::npos)
        << err;
    EXPECT_FALSE(exists("out"));
}

TEST_F(MakePages, PlacesThatTakeNoFileAreTroubleBeforeAnythingIsDone) {
    const std::string card = writeCardFile("a.zev");
    EXPECT_EQ(run({"pdf", "-o", write("file", "x"), card}), 2);
    EXPECT_EQ(err, "zevlin-cards: " + at("file") + ": a file, where a folder should be\n");
    EXPECT_EQ(run({"image", "-o", at("file/deep"), card}), 2);
    fs::create_directories(folder / "all.pdf");
    EXPECT_EQ(run({"pdf", "--together", at("all.pdf"), card}), 2);
    EXPECT_EQ(err, "zevlin-cards: " + at("all.pdf") + ": a folder, where a file should be\n");
    EXPECT_EQ(run({"pdf", "--together", at("none/all.pdf"), card}), 2);
    EXPECT_EQ(err, "zevlin-cards: " + at("none/all.pdf") + ": Path not found\n");
}

TEST_F(MakePages, WhatIsUpToDateIsSkipped) {
    const std::string old = writeCardFile("old.zev");
    const std::string changed = writeCardFile("changed.zev");
    write("out/old.pdf", "as it was");
    write("out/changed.pdf", "as it was");
    fs::last_write_time(folder / "changed.zev",
                        fs::last_write_time(folder / "out" / "changed.pdf") +
                            std::chrono::hours(1));
    EXPECT_EQ(run({"pdf", "--newer", "-o", at("out"), old, changed}), 0) << err;
    EXPECT_EQ(contentOf("out/old.pdf"), "as it was");
    EXPECT_EQ(pagesIn(contentOf("out/changed.pdf")), 1);
    EXPECT_EQ(run({"pdf", "-o", at("out"), old}), 0) << err;
    EXPECT_EQ(pagesIn(contentOf("out/old.pdf")), 1);
}

TEST_F(MakePages, TheSameCardsGiveTheSameBytesHoweverTheyAreShared) {
    std::vector<std::string> cards;
    for (int i = 0; i < 6; ++i) {
        CardDocument card = someCard();
        card.texts[1].text = std::string(static_cast<std::size_t>(i) * 9, 'W');
        cards.push_back(writeCardFile("c" + std::to_string(i) + ".zev", card));
    }
    const auto make = [&](const char* command, const std::string& to, const char* workers) {
        std::vector<std::string> arguments{command, "-j", workers, "-o", at(to)};
        arguments.insert(arguments.end(), cards.begin(), cards.end());
        EXPECT_EQ(run(arguments), 0) << err;
        std::ranges::reverse(cards);
    };
    for (const char* command : {"pdf", "image"}) {
        make(command, std::string(command) + "1", "1");
        make(command, std::string(command) + "3", "3");
        for (const std::string& name : filesIn(std::string(command) + "1"))
            EXPECT_TRUE(contentOf(std::string(command) + "1/" + name) ==
                        contentOf(std::string(command) + "3/" + name))
                << name;
    }
    EXPECT_EQ(filesIn("pdf3").size(), 6U);
}

TEST_F(MakePages, TheDataFolderStaysAsItIsAndNothingIsLeftBehind) {
    writeCardFile("ZEV/Ann.zev");
    write("ZEV/ZEV.Ini", "Name=Joe\r\nZoom=3\r\n");
    write("temporary/other", "");
    for (const char* name : {"TMPDIR", "TMP"}) test_system::setVariable(name, at("temporary"));
    EXPECT_EQ(run({"pdf", "-o", at("out"), "Ann"}), 0) << err;
    EXPECT_EQ(filesIn("temporary"), (std::set<std::string>{"other"}));
    EXPECT_EQ(filesIn("ZEV"), (std::set<std::string>{"Ann.zev", "ZEV.Ini"}));
    EXPECT_EQ(contentOf("ZEV/ZEV.Ini"), "Name=Joe\r\nZoom=3\r\n");
    EXPECT_EQ(filesIn("out"), (std::set<std::string>{"Ann.pdf"}));
    for (const char* name : {"TMPDIR", "TMP"}) test_system::clearVariable(name);
}

TEST_F(MakePages, AFormThatCantBeMadeIsTrouble) {
    const std::string card = writeCardFile("a.zev");
    EXPECT_EQ(run({"pdf", "-o", at("out"), "--layout", write("bad.ini", "no layout"), card}), 2);
    EXPECT_TRUE(err.starts_with("zevlin-cards: ")) << err;
    EXPECT_TRUE(filesIn("out").empty());
    worker = folder / "no such program";
    EXPECT_EQ(run({"pdf", "-o", at("out"), card}), 2);
    EXPECT_TRUE(err.starts_with("zevlin-cards: ")) << err;
}

TEST_F(MakePages, AWrongDateIsTrouble) {
    test_system::setVariable("SOURCE_DATE_EPOCH", "today");
    EXPECT_EQ(run({"pdf", "-o", at("out"), writeCardFile("a.zev")}), 2);
    test_system::clearVariable("SOURCE_DATE_EPOCH");
    EXPECT_EQ(err, "zevlin-cards: SOURCE_DATE_EPOCH: no number of seconds\n");
    EXPECT_FALSE(exists("out"));
}

TEST_F(MakePages, ProgressIsShownWhereSomebodySeesItAndGoesAgain) {
    const std::string card = writeCardFile("a.zev");
    isErrShown = true;
    EXPECT_EQ(run({"pdf", "-o", at("out"), card}), 0);
    EXPECT_NE(err.find("\r["), std::string::npos) << err;
    EXPECT_TRUE(err.ends_with(" \r")) << err;
    EXPECT_EQ(run({"pdf", "--quiet", "-o", at("out"), card}), 0);
    EXPECT_EQ(err, "");
}

} // namespace
} // namespace zev
