#include "layout/former_layout.h"

#include "toolkit/base/files.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

std::string formerLayout(const std::string& twips) {
    return toolkit::readFile(std::filesystem::path(FORMER_LAYOUTS) / ("Definitions.Ini." + twips));
}

std::string replaced(std::string text, const std::string& part, const std::string& by) {
    const std::size_t place = text.find(part);
    EXPECT_NE(place, std::string::npos) << part;
    return place == std::string::npos ? text : text.replace(place, part.size(), by);
}

TEST(FormerLayout, EachOfTheThreeIsKnown) {
    for (const char* twips : {"12", "13", "15"})
        EXPECT_TRUE(isUntouchedFormerLayout(formerLayout(twips))) << twips;
}

TEST(FormerLayout, IsKnownByItsFieldsAlone) {
    std::string layout = formerLayout("15");
    layout = replaced(layout, "version: 2.0.0", "version: 2.1.0");
    layout = replaced(layout, "15,19200", "15,28800");
    EXPECT_TRUE(isUntouchedFormerLayout(layout));
    // A layout that was written with squares for checks.
    EXPECT_TRUE(isUntouchedFormerLayout(replaced(layout, ",252,0\r\n", ",110,0\r\n")));
}

TEST(FormerLayout, AnyChangeMakesItThePlayersOwn) {
    const std::string layout = formerLayout("15");
    const std::size_t mark = layout.find("\r\n1,") + 2;
    const std::string line = layout.substr(mark, layout.find('\r', mark) - mark);
    const std::size_t comma = line.find(',', 2);
    const int left = std::stoi(line.substr(2, comma - 2));
    const std::string moved = "1," + std::to_string(left + 1) + line.substr(comma);
    EXPECT_FALSE(isUntouchedFormerLayout(replaced(layout, line, moved)));
    EXPECT_FALSE(isUntouchedFormerLayout(replaced(layout, ",1,1,252,0\r\n", ",2,1,252,0\r\n")));
    EXPECT_FALSE(isUntouchedFormerLayout(replaced(layout, ",1,1,252,0\r\n", ",1,2,252,0\r\n")));
    EXPECT_FALSE(isUntouchedFormerLayout(replaced(layout, ",252,0\r\n", ",161,0\r\n")));
    // Where TAB goes from the first text.
    const std::size_t tab = layout.rfind("\r\n1,") + 2;
    std::string other = layout;
    other.replace(tab, layout.find('\r', tab) - tab, "1,5");
    EXPECT_FALSE(isUntouchedFormerLayout(other));
}

TEST(FormerLayout, WhatIsNoWholeLayoutIsNone) {
    const std::string layout = formerLayout("15");
    EXPECT_FALSE(isUntouchedFormerLayout(""));
    EXPECT_FALSE(isUntouchedFormerLayout(layout.substr(0, layout.size() / 2)));
    EXPECT_FALSE(isUntouchedFormerLayout(replaced(layout, "15,19200", "15,x")));
}

} // namespace
} // namespace zev
