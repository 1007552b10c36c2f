#include "cards/form_folder.h"

#include "cards/cards_test.h"
#include "toolkit/base/files.h"

namespace zev {
namespace {

class FormFolder : public test::CardsTest {
  protected:
    FormFolder() { std::filesystem::create_directories(folder / "form"); }

    std::string filled(const char* name, const CommandOptions& options = {}) {
        std::istringstream in;
        std::ostringstream ignored;
        fillFormFolder(folder / "form", options,
                       {.in = in, .out = ignored, .err = ignored, .dataFolder = [this] {
                            return dataFolder;
                        }});
        const auto file = folder / "form" / name;
        return std::filesystem::exists(file) ? toolkit::readFile(file) : "none";
    }
};

TEST_F(FormFolder, TheFormHasThePlayersOptionsButItsOwnViewAndPrinter) {
    EXPECT_EQ(formOptions("' Program version: 2.1.0\r\nName=Joe   ' you\r\nZoom=3\r\n FIT =1\r\n"
                          "Bold=1\r\nPrintAlt=1\r\nPrinter=Laser\r\nPaperBin=2\r\nTrace=1\r\n"
                          "ColorScheme=7"),
              "' Program version: 2.1.0\r\nName=Joe   ' you\r\nBold=1\r\nColorScheme=7\r\n"
              "Zoom=11\r\n");
    EXPECT_EQ(formOptions(""), "Zoom=11\r\n");
}

TEST_F(FormFolder, TakesOptionsLayoutAndPictureOfTheDataFolder) {
    write("ZEV/zev.ini", "Name=Joe\r\n");
    write("ZEV/DEFINITIONS.INI", "layout");
    write("ZEV/Convention Card.GIF", "picture");
    EXPECT_EQ(filled("ZEV.Ini"), "Name=Joe\r\nZoom=11\r\n");
    EXPECT_EQ(filled("Definitions.Ini"), "layout");
    EXPECT_EQ(filled("Convention card.gif"), "picture");
    EXPECT_EQ(toolkit::readFile(dataFolder / "zev.ini"), "Name=Joe\r\n");
}

TEST_F(FormFolder, WithoutADataFolderThereAreOptionsOnly) {
    EXPECT_EQ(filled("ZEV.Ini"), "Zoom=11\r\n");
    EXPECT_EQ(filled("Definitions.Ini"), "none");
    dataFolder.clear();
    EXPECT_EQ(filled("ZEV.Ini"), "Zoom=11\r\n");
}

TEST_F(FormFolder, ALayoutSetAsideIsThePlayersOwn) {
    write("ZEV/Definitions.Ini", "of a job");
    write("ZEV/$$TempDef.Ini", "layout");
    EXPECT_EQ(filled("Definitions.Ini"), "layout");
}

TEST_F(FormFolder, ALayoutThatIsAskedForGoesFirst) {
    write("ZEV/Definitions.Ini", "layout");
    CommandOptions options;
    options.layout = write("other.ini", "another");
    EXPECT_EQ(filled("Definitions.Ini", options), "another");
    options.layout = at("none.ini");
    EXPECT_THROW((void)filled("Definitions.Ini", options), Trouble);
}

TEST_F(FormFolder, ATemporaryFolderIsThePlayersAloneAndGoes) {
    std::filesystem::path place;
    {
        const TemporaryFolder own(folder);
        place = own.path();
        EXPECT_EQ(place.parent_path(), folder);
        std::ofstream(place / "file") << "x";
#ifndef _WIN32
        EXPECT_EQ(std::filesystem::status(place).permissions(), std::filesystem::perms::owner_all);
#endif
    }
    EXPECT_FALSE(std::filesystem::exists(place));
    EXPECT_THROW(const TemporaryFolder lost(folder / "none"), Trouble);
}

} // namespace
} // namespace zev
