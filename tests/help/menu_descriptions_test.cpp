#include "help/menu_descriptions.h"

#include <gtest/gtest.h>

namespace {

using Table = std::vector<std::string>;

/// What the menus show, and what is said of it.
struct Described {
    std::string_view caption;
    std::string_view text;
};

constexpr Described texts[] = {
    {"Boldface",
     "Use boldface in all text areas. You will not be able to use 'Regular' face for individual "
     "fields. This option will apply to all cards from now on, until you turn it off."},
    {"Left-Justify all text",
     "Left-justify all text areas. You still will be able to center individual fields. This option "
     "only affects the current card at this moment. To re-center everything, turn this off."},
    {"Fill-in Checkmarks", "Use solid squares instead of checkmarks. The checkmarks usually are "
                           "more noticeable."},
    {"Use alternate print method",
     "If regular printing doesn't work, select this option, then use 'Printer Setup' to select "
     "your printer, and try printing again."},
    {"Show the Design Menu         Shift Ctrl  D",
     "Normally never needed, this gives you access to the Design menu, which lets you change the "
     "positions of fields and add new ones."},
    {"Export Image to file as...",
     "Creates an Image file (a picture) of your filled-in card, which you can email to someone "
     "else. GIF files are the smallest, BMP's are much larger."},
    {"Copy to Clipboard",
     "Places an Image of your filled-in card on the Clipboard, allowing you to Paste that Image "
     "into any program (such as WORD) that supports images."},
    {"My ID", "You can enter your name and/or ACBL number once, and that information will appear "
              "on all cards from now on."},
    {"Partner's Name",
     "You can enter the name and/or ACBL number of the partner who will share this card with you, "
     "and that information will be used with the 'Print Partner's Card' option (for this card)."},
    {"Color Management",
     "Normally, the 'pen' color used to complete a card follows ACBL standards: black=normal; "
     "red=alertable; blue=no trump. This lets you select ONE (non-standard) 'pen' color instead of "
     "those."},
};

TEST(MenuDescriptions, AreTenBehindTheSeparator) {
    const auto table = zev::menuDescriptions();
    ASSERT_EQ(table.size(), 11U);
    EXPECT_EQ(table.front(), "~");
    std::size_t entry = 1;
    for (const auto& described : texts)
        EXPECT_TRUE(table[entry++].ends_with("~" + std::string(described.text)));
}

TEST(MenuDescriptions, TellEachItemByTheBeginningOfItsCaption) {
    for (const auto& described : texts)
        EXPECT_EQ(zev::descriptionIn(zev::menuDescriptions(), described.caption), described.text);
}

TEST(MenuDescriptions, OtherItemsHaveNone) {
    for (const auto* caption : {"My Name", "GIF", "PNG", "Export Partner Image to file as..",
                                "Print Partner's card", "Font size", "boldface", "Bold", "", "~"})
        EXPECT_EQ(zev::descriptionIn(zev::menuDescriptions(), caption), "") << caption;
}

TEST(MenuDescriptions, TheFirstEntryThatMatchesCounts) {
    EXPECT_EQ(zev::descriptionIn(Table{"|", "Copy to|one", "Copy|two", "|all"}, "Copy to"), "one");
    EXPECT_EQ(zev::descriptionIn(Table{"|", "Copy to|one", "Copy|two", "|all"}, "Copy"), "two");
    EXPECT_EQ(zev::descriptionIn(Table{"|", "Copy to|one", "Copy|two", "|all"}, "Cop"), "all");
}

TEST(MenuDescriptions, OnlyTheFirstSeparatorOfAnEntryParts) {
    EXPECT_EQ(zev::descriptionIn(Table{"~", "no separator", "Copy~a~b"}, "Copy"), "a~b");
}

TEST(MenuDescriptions, ATableWithoutASeparatorTellsNothing) {
    EXPECT_EQ(zev::descriptionIn({}, "Copy"), "");
    EXPECT_EQ(zev::descriptionIn(Table{"", "Copy~text"}, "Copy"), "");
    EXPECT_EQ(zev::descriptionIn(Table{"~~", "Copy~~text"}, "Copy"), "");
    EXPECT_EQ(zev::descriptionIn(Table{"~"}, "Copy"), "");
}

} // namespace
