// Every command that rebuilds the screen, with a changed card open, while something is wrong with
// the data folder: card, name and changed flag stay, and the program goes on.
#include <array>
#include <optional>
#include <tuple>

#include "card/document.h"
#include "card/save.h"
#include "card/write_card.h"
#include "form/write_options.h"
#include "output/print_test.h"
#include "support/immutable_folder.h"
#include "support/small_disk.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

/// What the player chooses, and what they answer on the way.
struct Work {
    const char* name;
    const char* menu;
    bool asksForPage = false;
    bool asksForImage = false;
    bool isJob = false; ///< a job sets the layout's file aside, and so doesn't need it
};

/// What happens to the folder, and what a box then says; empty if there is none.
struct Trouble {
    const char* name;
    void (*strike)(const fs::path& folder);
    const char* told = "";
    bool isOfLayout = false;
    bool endsWithLayout = true; ///< Definitions.Ini is there afterwards
};

void removeLayout(const fs::path& folder) { fs::remove(folder / "Definitions.Ini"); }

void renameLayout(const fs::path& folder) {
    fs::rename(folder / "Definitions.Ini", folder / "mine.txt");
}

void damageLayout(const fs::path& folder) {
    toolkit::writeFile(folder / "Definitions.Ini", "15,19200\r\nbad\r\n");
}

void cutLayout(const fs::path& folder) {
    const std::string content = toolkit::readFile(folder / "Definitions.Ini");
    toolkit::writeFile(folder / "Definitions.Ini", content.substr(0, content.size() / 2));
}

void shrinkLayout(const fs::path& folder) {
    toolkit::writeFile(folder / "Definitions.Ini",
                       smallLayout({}, {{.left = 10, .top = 10, .width = 90, .height = 20}}));
}

void makeLayoutAFolder(const fs::path& folder) {
    removeLayout(folder);
    fs::create_directory(folder / "Definitions.Ini");
}

void makeOptionsAFolder(const fs::path& folder) {
    fs::remove(folder / "ZEV.Ini");
    fs::create_directory(folder / "ZEV.Ini");
}

void removeOptions(const fs::path& folder) { fs::remove(folder / "ZEV.Ini"); }

void removeFolder(const fs::path& folder) { fs::rename(folder, folder.parent_path() / "gone"); }

void replaceFolderByFile(const fs::path& folder) {
    removeFolder(folder);
    toolkit::writeFile(folder, "a file");
}

const std::array works{
    Work{.name = "ZoomIn", .menu = "View>Zoom In (Bigger)                   Ctrl +"},
    Work{.name = "ZoomOut", .menu = "View>Zoom Out (Smaller)               Ctrl  -"},
    Work{.name = "FitWidth", .menu = "View>Fit to screen width                Ctrl  0"},
    Work{.name = "FitHeight", .menu = "View>Fit to screen height"},
    Work{.name = "LargerText", .menu = "Options>Font size>Larger"},
    Work{.name = "FillIn", .menu = "Options>Fill-in Checkmarks"},
    Work{.name = "Print", .menu = "File>Print card", .asksForPage = true, .isJob = true},
    Work{.name = "PrintPartner",
         .menu = "File>Print Partner's card",
         .asksForPage = true,
         .isJob = true},
    Work{.name = "Export",
         .menu = "File>Export Image to file as...>BMP",
         .asksForImage = true,
         .isJob = true},
    Work{.name = "Copy", .menu = "File>Copy to Clipboard", .isJob = true},
};

constexpr const char* layoutTold = "The places of the fields (Definitions.Ini): ";
constexpr const char* tooSmallTold =
    "The places of the fields (Definitions.Ini): It has too few fields for this card";
constexpr const char* optionsTold = "The settings (ZEV.Ini): Path/File access error";
constexpr const char* goneTold = "The settings (ZEV.Ini): Path not found";

constexpr bool ofLayout = true;
constexpr bool withoutLayout = false;

const std::array troubles{
    Trouble{"None", [](const fs::path&) {}},
    Trouble{"LayoutRemoved", removeLayout},
    Trouble{"LayoutRenamed", renameLayout},
    Trouble{"LayoutDamaged", damageLayout, layoutTold, ofLayout},
    Trouble{"LayoutCut", cutLayout, layoutTold, ofLayout},
    Trouble{"LayoutTooSmall", shrinkLayout, tooSmallTold, ofLayout},
    Trouble{"LayoutAFolder", makeLayoutAFolder, layoutTold, ofLayout},
    Trouble{"OptionsAFolder", makeOptionsAFolder, optionsTold},
    Trouble{"OptionsRemoved", removeOptions},
    Trouble{"FolderGone", removeFolder, goneTold, !ofLayout, withoutLayout},
    Trouble{"FolderAFile", replaceFolderByFile, goneTold, !ofLayout, withoutLayout},
};

/// What is filled in, as a card file tells it, however many fields the layout has.
std::string filledIn(CardDocument document) {
    constexpr std::size_t fields = 4;
    document.marks.resize(fields);
    document.texts.resize(fields);
    return writeCard(document);
}

class FolderTroubleTest : public PrintTest {
  protected:
    /// A named card, changed, with a field open.
    void startWithChangedCard() {
        writeCard("Jones", "'Program version: 2.0.0\r\n\"Pat\",\"77\"\r\n1\r\n1,1,0\r\n1\r\n"
                           "1,\"5^h & up\",14\r\n");
        writeOptions("Zoom=5\r\nName=Kim\r\nColorScheme=255\r\n");
        start("Jones.zev");
        clickMark(3);
        clickText(2);
        toolkit::test::typeText("Kim and Pat");
        before_ = filledIn(documentWithTyping(form));
        settings_ = settingsInMemory();
        for (const char* head :
             {"Error in IniWrite ", "Error in MSave_Click ", "Error in Initialize ",
              "Error in MSaveShapes ", "Error in CheckPointShapes ",
              "Error in Traceit: ", "Error in SaveImageToDisk: "})
            announceError(head);
    }
    void run(const Work& work) {
        if (work.asksForPage) answerFile(home / "page.pdf");
        if (work.asksForImage) answerInput("picture.bmp");
        EXPECT_TRUE(toolkit::test::chooseMenu(work.menu)) << work.menu;
    }
    void expectWhole() {
        EXPECT_EQ(filledIn(documentOf(form)), before_);
        EXPECT_EQ(form.CardName, "Jones");
        EXPECT_TRUE(form.CardModified);
        EXPECT_EQ(form.Caption, "Zevlin  ( Jones ) *");
        EXPECT_TRUE(form.P1.Visible);
        EXPECT_FALSE(form.THelp.Visible);
        EXPECT_FALSE(form.Carried.has_value());
        EXPECT_EQ(form.AMark.UBound() >= 4 && form.AText.UBound() >= 2, true);
        EXPECT_EQ(settingsInMemory(), settings_);
    }
    /// Boxes that tell of the folder.
    [[nodiscard]] std::vector<std::string> told() const {
        std::vector<std::string> texts;
        for (const ShownBox& box : boxes)
            if (box.text.starts_with("Zevlin could not use its folder")) texts.push_back(box.text);
        return texts;
    }
    void expectTold(std::string_view text) const {
        if (text.empty()) {
            EXPECT_TRUE(told().empty()) << told().front();
            return;
        }
        ASSERT_EQ(told().size(), 1U);
        EXPECT_NE(told().front().find(text), std::string::npos) << told().front();
    }

  private:
    [[nodiscard]] std::vector<std::string> settingsInMemory() const {
        return {form.MyName, form.MyNumber, std::to_string(form.ColorScheme),
                form.mBold.Checked ? "bold" : ""};
    }

    std::string before_;
    std::vector<std::string> settings_;
};

class FolderTrouble : public FolderTroubleTest,
                      public testing::WithParamInterface<std::tuple<Work, Trouble>> {};

TEST_P(FolderTrouble, LeavesTheCardAndTellsOnce) {
    const auto& [work, trouble] = GetParam();
    const std::string_view told = work.isJob && trouble.isOfLayout ? "" : trouble.told;
    startWithChangedCard();
    trouble.strike(dataFolder);
    run(work);
    expectWhole();
    expectTold(told);
    run(work);
    expectWhole();
    expectTold(told);
    EXPECT_EQ(fs::is_regular_file(dataFile("Definitions.Ini")),
              trouble.endsWithLayout && trouble.strike != makeLayoutAFolder);
    EXPECT_FALSE(fs::exists(dataFile("$$Tempcard.zev")));
}

INSTANTIATE_TEST_SUITE_P(Each, FolderTrouble,
                         testing::Combine(testing::ValuesIn(works), testing::ValuesIn(troubles)),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param).name) +
                                    std::get<1>(test.param).name;
                         });

class DiskTrouble : public FolderTroubleTest, public testing::WithParamInterface<Work> {
  protected:
    void SetUp() override {
        constexpr int kilobytes = 4096;
        if (disk_.emplace(dataFolder, kilobytes); !disk_->isThere())
            GTEST_SKIP() << "no disk of its own: " << disk_->refusal();
        toolkit::writeFile(dataFolder / "Definitions.Ini", fewFields());
    }
    void TearDown() override {
        if (disk_->isThere()) FolderTroubleTest::TearDown();
        disk_.reset();
    }
    [[nodiscard]] const test_system::SmallDisk& disk() const { return *disk_; }

  private:
    std::optional<test_system::SmallDisk> disk_;
};

TEST_P(DiskTrouble, ThatTakesNothingLeavesTheCardAndTellsOnce) {
    startWithChangedCard();
    disk().fill();
    run(GetParam());
    expectWhole();
    expectTold("A temporary copy of the card ($$Tempcard.zev): Disk full");
    disk().giveRoom();
    run(GetParam());
    expectWhole();
    expectTold("A temporary copy of the card ($$Tempcard.zev): Disk full");
}

TEST_P(DiskTrouble, ThatBecomesReadOnlyLeavesTheCardAndTellsOnce) {
    startWithChangedCard();
    disk().makeReadOnly();
    run(GetParam());
    expectWhole();
    expectTold("The settings (ZEV.Ini): Permission denied");
    run(GetParam());
    expectWhole();
    expectTold("The settings (ZEV.Ini): Permission denied");
}

INSTANTIATE_TEST_SUITE_P(Each, DiskTrouble, testing::ValuesIn(works),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(FolderTroubleTest, AnImmutableFolderLeavesTheCardAndTells) {
    startWithChangedCard();
    const test_system::ImmutableFolder immutable(dataFolder);
    if (!immutable.isThere()) GTEST_SKIP() << "no file here can be made immutable";
    run(works[0]);
    expectWhole();
    expectTold("A temporary copy of the card ($$Tempcard.zev): Permission denied");
}

TEST_F(FolderTroubleTest, IsToldAgainAfterItWasMended) {
    startWithChangedCard();
    for (int i = 1; i <= 2; ++i) {
        boxes.clear();
        fs::rename(dataFolder, home / "gone");
        run(works[0]);
        run(works[1]);
        EXPECT_EQ(told().size(), 1U);
        fs::rename(home / "gone", dataFolder);
        run(works[0]);
        expectWhole();
        EXPECT_EQ(told().size(), 1U);
    }
}

TEST_F(FolderTroubleTest, IsNotToldOfSettingsThatWereWrittenSince) {
    startWithChangedCard();
    fs::rename(dataFolder, home / "gone");
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Boldface"));
    fs::rename(home / "gone", dataFolder);
    run(works[0]);
    EXPECT_TRUE(told().empty()) << told().front();
    EXPECT_NE(dataFileContent("ZEV.Ini").find("\r\nBold=1"), std::string::npos);
}

TEST_F(FolderTroubleTest, SettingsThatCantBeReadStayInMemory) {
    startWithChangedCard();
    form.MyName = "Someone";
    fs::remove(dataFile("ZEV.Ini"));
    fs::create_directory(dataFile("ZEV.Ini"));
    run(works[0]);
    EXPECT_EQ(form.MyName, "Someone");
    EXPECT_EQ(form.ZoomLevel, 6);
    EXPECT_EQ(form.LastImageScale, 0.6F);
}

TEST_F(FolderTroubleTest, ADamagedLayoutLeavesTheFieldsAtTheirPlaces) {
    startWithChangedCard();
    const float left = form.AMark[4].Left / form.CardScale;
    damageLayout(dataFolder);
    run(works[0]);
    EXPECT_FLOAT_EQ(form.AMark[4].Left / form.CardScale, left);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), "15,19200\r\nbad\r\n");
}

TEST_F(FolderTroubleTest, ARemovedLayoutComesBackAsInstalled) {
    startWithChangedCard();
    removeLayout(dataFolder);
    run(works[0]);
    EXPECT_EQ(dataFileContent("Definitions.Ini"),
              toolkit::readFile(programFolder / "Definitions.Ini.15"));
    EXPECT_GT(form.AMark.UBound(), 200);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
}

TEST_F(FolderTroubleTest, WithoutAnInstalledLayoutTheFieldsStay) {
    startWithChangedCard();
    removeLayout(dataFolder);
    fs::remove(programFolder / "Definitions.Ini.15");
    run(works[0]);
    expectWhole();
    expectTold("The places of the fields (Definitions.Ini): File not found");
}

} // namespace
} // namespace zev::test
