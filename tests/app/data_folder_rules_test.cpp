#include "app/data_folder_rules.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(PlayersFile, IsALayoutOptionsOrACard) {
    for (const char* name : {"definitions.ini", "zev.ini", "joe.zev", ".zev"})
        EXPECT_TRUE(isPlayersFile(name)) << name;
}

TEST(PlayersFile, IsAReadmeAPictureOrAText) {
    for (const char* name : {"readme", "readme.html", "convention card.gif", "a.bmp", "trace.txt"})
        EXPECT_TRUE(isPlayersFile(name)) << name;
}

TEST(PlayersFile, IsNoNumberedLayoutAndNoOtherFile) {
    for (const char* name : {"definitions.ini.12", "definitions.ini.15", "my zev.ini", "zevlin.exe",
                             "zevlin", "a.gif.old", "my readme", "a.png", ""})
        EXPECT_FALSE(isPlayersFile(name)) << name;
}

TEST(GoodTarget, IsAsOldAsItsSourceOrNewer) {
    EXPECT_TRUE(isGoodTarget(1000, 1000));
    EXPECT_TRUE(isGoodTarget(1000, 1001));
}

TEST(GoodTarget, IsNotOlderByASecond) { EXPECT_FALSE(isGoodTarget(1000, 999)); }

TEST(Readme, BeginsWithTheWord) {
    EXPECT_TRUE(isReadme("readme.txt"));
    EXPECT_FALSE(isReadme("my readme.txt"));
    EXPECT_FALSE(isReadme("read"));
}

} // namespace
} // namespace zev
