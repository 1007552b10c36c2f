#include "card_picture/layout_reader.h"

#include <gtest/gtest.h>

#include <set>

namespace card_picture {
namespace {

constexpr int firstMark = 1000;
constexpr int foldInDesignPixels = 599;

std::vector<int> walkOf(const Layout& from) {
    std::vector<int> walk;
    int at = 1;
    do {
        walk.push_back(at);
        const auto next = from.tab.find(at);
        at = next == from.tab.end() ? 0 : next->second;
    } while (at > 1 && walk.size() < 2000);
    return walk;
}

const Field& fieldOf(const Layout& from, int item) {
    return item > firstMark ? from.marks.at(static_cast<std::size_t>(item - firstMark - 1))
                            : from.texts.at(static_cast<std::size_t>(item - 1));
}

TEST(Walk, VisitsEachFieldOnce) {
    for (const int twips : {12, 13, 15}) {
        const Layout& from = layout(twips);
        const std::vector<int> walk = walkOf(from);
        const std::set<int> visited(walk.begin(), walk.end());
        EXPECT_EQ(visited.size(), walk.size());
        std::set<int> wanted;
        for (const Field& text : from.texts) wanted.insert(text.number);
        for (const Field& mark : from.marks) wanted.insert(firstMark + mark.number);
        EXPECT_EQ(visited, wanted);
    }
}

TEST(Walk, LeadsFromTheLastFieldToTheFirst) {
    const std::vector<int> walk = walkOf(layout(15));
    EXPECT_EQ(layout(15).tab.at(walk.back()), walk.front());
    EXPECT_EQ(layout(15).tab.size(), walk.size());
}

TEST(Walk, ComesToTheCirclesAfterAllOtherFields) {
    bool circles = false;
    int last = 0;
    for (const int item : walkOf(layout(15))) {
        const bool isCircle = item > firstMark && fieldOf(layout(15), item).isCircle();
        EXPECT_TRUE(isCircle || !circles) << item;
        // Holding by holding, as they are numbered.
        EXPECT_TRUE(!isCircle || item > last) << item;
        circles = circles || isCircle;
        last = item;
    }
    EXPECT_TRUE(circles);
}

TEST(Walk, GoesThroughTheRightPanelFirst) {
    bool left = false;
    for (const int item : walkOf(layout(15))) {
        const bool onLeft = fieldOf(layout(15), item).left < foldInDesignPixels;
        EXPECT_TRUE(onLeft || !left) << item;
        left = left || onLeft;
    }
    EXPECT_TRUE(left);
}

TEST(Walk, BeginsWithTheNamesLine) {
    EXPECT_EQ(walkOf(layout(15)).front(), fieldNumbers("text").at("names"));
    EXPECT_EQ(layout(15).texts.front().size, 3);
}

TEST(Walk, LargestValueIsTheLastEntry) {
    EXPECT_EQ(layout(15).largestTab, layout(15).tab.rbegin()->first);
}

TEST(Walk, FollowsTheReadingOrderOfAnArea) {
    const auto texts = fieldNumbers("text");
    const auto marks = fieldNumbers("mark");
    const auto& tab = layout(15).tab;
    EXPECT_EQ(tab.at(texts.at("1nt.low")), texts.at("1nt.high"));
    EXPECT_EQ(tab.at(firstMark + marks.at("double.negative")), texts.at("double.negative.thru"));
    EXPECT_EQ(tab.at(texts.at("double.negative.thru")), firstMark + marks.at("double.responsive"));
    EXPECT_EQ(tab.at(texts.at("1nt.two_notrump")), texts.at("1nt.three_clubs"));
}

} // namespace
} // namespace card_picture
