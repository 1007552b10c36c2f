#include "cards/page_plan.h"

#include <chrono>

#include "cards/cards_test.h"

namespace zev {
namespace {

class PagePlanned : public test::CardsTest {
  protected:
    PagePlanned() {
        options.command = Command::Pdf;
        options.outputFolder = at("out");
    }
    /// A file that is so many hours older than now.
    std::filesystem::path aged(std::string_view name, int hours) const {
        const auto path = pathOf(write(name, "x"));
        using std::filesystem::last_write_time;
        last_write_time(path, last_write_time(path) - std::chrono::hours(hours));
        return path;
    }

    CommandOptions options;
};

TEST_F(PagePlanned, AFileIsCalledAsItsCard) {
    EXPECT_EQ(outputName(options, pathOf("club/Ann.zev")), "Ann.pdf");
    EXPECT_EQ(outputName(options, pathOf("club/Ann.ZEV")), "Ann.pdf");
    EXPECT_EQ(outputName(options, pathOf("Ann & Bo.2026.zev")), "Ann & Bo.2026.pdf");
    EXPECT_EQ(outputName(options, pathOf("Ann.old")), "Ann.old.pdf");
    options.owner = CardOwner::Both;
    EXPECT_EQ(outputName(options, pathOf("Ann.zev")), "Ann.pdf");
    options.owner = CardOwner::Partner;
    EXPECT_EQ(outputName(options, pathOf("Ann.zev")), "Ann - partner.pdf");
    options.command = Command::Image;
    options.imageType = "gif";
    EXPECT_EQ(outputName(options, pathOf("a\nb.zev")), pathOf("a\nb.gif"));
}

TEST_F(PagePlanned, FilesLieInTheFolderThatWasAskedFor) {
    PagePlan plan(options);
    plan.add(pathOf("club/Ann.zev"));
    EXPECT_EQ(plan.output(0), folder / "out" / "Ann.pdf");
    CommandOptions here;
    here.command = Command::Pdf;
    PagePlan other(here);
    other.add(pathOf("club/Ann.zev"));
    EXPECT_EQ(other.output(0), "Ann.pdf");
    here.together = "all.pdf";
    EXPECT_EQ(other.output(0), "all.pdf");
}

TEST_F(PagePlanned, TwoCardsOfOneFileAreTold) {
    PagePlan plan(options);
    for (const char* card : {"a/Ann.zev", "b/Bo.zev", "b/Ann.zev", "c/Cy.zev"})
        plan.add(pathOf(card));
    EXPECT_EQ(plan.clashes(),
              (std::vector<std::string>{utf8Of(folder / "out" / "Ann.pdf") +
                                        ": would be made of a/Ann.zev and of b/Ann.zev"}));
    options.together = "all.pdf";
    EXPECT_TRUE(plan.clashes().empty());
}

TEST_F(PagePlanned, ACardIsNotWrittenOver) {
    const std::string card = writeCardFile("out/Ann.pdf");
    PagePlan plan(options);
    plan.add(pathOf(card));
    EXPECT_TRUE(plan.clashes().empty()) << "it becomes Ann.pdf.pdf";
    plan.add(pathOf(writeCardFile("Ann.zev")));
    EXPECT_EQ(plan.clashes(), (std::vector<std::string>{card + ": would be written over"}));
}

TEST_F(PagePlanned, OnlyWhatIsNewerThanItsCardIsUpToDate) {
    PagePlan plan(options);
    plan.add(aged("old.zev", 5));
    plan.add(aged("changed.zev", 1));
    plan.add(aged("missing.zev", 5));
    aged("out/old.pdf", 3);
    aged("out/changed.pdf", 3);
    plan.dropUpToDate();
    ASSERT_EQ(plan.size(), 2U);
    EXPECT_EQ(plan.card(0), folder / "changed.zev");
    EXPECT_EQ(plan.card(1), folder / "missing.zev");
}

TEST_F(PagePlanned, ANewerLayoutMakesAllAnew) {
    options.layout = utf8Of(aged("layout.ini", 1));
    PagePlan plan(options);
    plan.add(aged("old.zev", 5));
    aged("out/old.pdf", 3);
    plan.dropUpToDate();
    EXPECT_EQ(plan.size(), 1U);
}

TEST_F(PagePlanned, OneFileIsMadeOfAllCardsOrOfNone) {
    options.together = at("all.pdf");
    PagePlan plan(options);
    plan.add(aged("old.zev", 5));
    plan.add(aged("changed.zev", 1));
    aged("all.pdf", 3);
    plan.dropUpToDate();
    EXPECT_EQ(plan.size(), 2U);
    aged("all.pdf", 0);
    plan.dropUpToDate();
    EXPECT_EQ(plan.size(), 0U);
}

} // namespace
} // namespace zev
