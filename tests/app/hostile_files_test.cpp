#include <random>
#include <set>

#include "app/initialize.h"
#include "app/layouts.h"
#include "app/read_options.h"
#include "card/write_card.h"
#include "form/options.h"
#include "layout/write_layout.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/dialog_answers.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

/// Whatever is in the player's files, the program tells a failure in its documented words or takes
/// what it can, and touches no other file.
class HostileFiles : public FormTest {
  protected:
    HostileFiles() {
        writeLayout(fewFields());
        writeCard("Keep", "kept");
    }
    void startOnBlankCard() {
        start("Nobody.zev");
        announceError("Error");
        toolkit::answerDialogsWith({.message = [this](const toolkit::MessageBox& box) {
            boxes.push_back({box.text, box.title, box.buttons, box.icon});
            return box.buttons == toolkit::Buttons::YesNo ? toolkit::Answer::No
                                                          : toolkit::Answer::Cancel;
        }});
    }
    /// Reads a layout as a zoom does; true if the program accepted it.
    bool takesLayout(const std::string& layout) {
        writeLayout(layout);
        boxes.clear();
        if (!failsProgram([&] { Initialize(form); })) return true;
        EXPECT_EQ(boxes.size(), 1U);
        EXPECT_TRUE(boxes[0].text.starts_with("The 'Definitions.Ini' file in '" +
                                              dataFolder.string() + "' contains errors."))
            << boxes[0].text;
        EXPECT_EQ(dataFileContent("Definitions.Ini"), layout);
        return false;
    }
    void takeOptions(const std::string& options) {
        form.Initializing = true;
        EXPECT_NO_THROW(readOptions(form, options));
    }
    void expectNothingElseTouched() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(dataFolder)) {
            names.insert(entry.path().filename().string());
        }
        names.erase("Trace.txt");
        EXPECT_EQ(names, (std::set<std::string>{"Definitions.Ini", "Keep.zev", "ZEV.Ini"}));
        EXPECT_EQ(dataFileContent("Keep.zev"), "kept");
    }
    static std::string randomBytes(std::mt19937& random, std::size_t count) {
        std::string bytes(count, ' ');
        for (char& byte : bytes) byte = static_cast<char>(random() & 0xFFU);
        return bytes;
    }
    static std::string damaged(std::mt19937& random, std::string text) {
        for (int i = 0; i < 3; ++i) {
            text[random() % text.size()] = "0123456789,-.\"'\r\n\x00x"[random() % 19];
        }
        return text;
    }
};

TEST_F(HostileFiles, ALayoutCutOffAtAnyByteIsTakenOrTold) {
    startOnBlankCard();
    const std::string whole = smallLayout({{.left = 5}}, {{.left = 6}}, "1,1001\r\n", 1001);
    int taken = 0;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        if (takesLayout(whole.substr(0, length))) ++taken;
    }
    EXPECT_GT(taken, 0);
    EXPECT_LT(taken, static_cast<int>(whole.size()) / 4);
    EXPECT_TRUE(takesLayout(whole));
    expectNothingElseTouched();
}

TEST_F(HostileFiles, ALayoutOfRandomBytesIsTold) {
    startOnBlankCard();
    std::mt19937 random(1);
    for (int i = 0; i < 100; ++i) EXPECT_FALSE(takesLayout("x" + randomBytes(random, 300)));
    expectNothingElseTouched();
}

TEST_F(HostileFiles, ADamagedLayoutIsTakenOrTold) {
    startOnBlankCard();
    form.FontChangeAsked = true;
    std::mt19937 random(2);
    const std::string whole = fewFields();
    int taken = 0;
    for (int i = 0; i < 200; ++i) {
        const std::string layout = damaged(random, whole);
        writeLayout(layout);
        boxes.clear();
        if (!failsProgram([&] { Initialize(form); })) ++taken;
        EXPECT_LE(boxes.size(), 1U);
    }
    EXPECT_GT(taken, 20);
    EXPECT_LT(taken, 200);
    expectNothingElseTouched();
}

TEST_F(HostileFiles, PlacesOutOfAllRangeAreTaken) {
    startOnBlankCard();
    for (const char* place : {"1e38", "-1e38", "1e10", "-32768", "0.0000001"}) {
        const auto layout = replaced(fewFields(), "1,100,100,18,18",
                                     std::string("1,") + place + "," + place + ",1e30,-5");
        EXPECT_TRUE(takesLayout(layout)) << place;
        window->update();
        toolkit::test::settle();
    }
    expectNothingElseTouched();
}

TEST_F(HostileFiles, NumbersBeyondTheirTypeAreTold) {
    startOnBlankCard();
    EXPECT_FALSE(takesLayout(replaced(fewFields(), "1,100,100,18,18,1,1", "1,1e99,1,1,1,1,1")));
    EXPECT_FALSE(takesLayout(replaced(fewFields(), "18,18,1,1,252", "18,18,1,40000,252")));
    EXPECT_FALSE(takesLayout(replaced(fewFields(), "18,18,1,1,252", "18,18,1,1,256")));
    EXPECT_FALSE(takesLayout(replaced(fewFields(), "18,18,1,1,252", "18,18,1,1,-1")));
    expectNothingElseTouched();
}

TEST_F(HostileFiles, CountsThatTheFileDoesNotHoldAreTold) {
    startOnBlankCard();
    EXPECT_FALSE(takesLayout(replaced(fewFields(), "\r\n4\r\n", "\r\n32767\r\n")));
    EXPECT_FALSE(takesLayout(replaced(fewFields(), "\r\n4\r\n", "\r\n32768\r\n")));
    EXPECT_FALSE(takesLayout(smallLayout({}, {}, "", 32767).substr(0, 10)));
}

TEST_F(HostileFiles, NegativeCountsAreNoFields) {
    startOnBlankCard();
    std::string layout = smallLayout({}, {});
    layout = replaced(layout, "\r\n0\r\n0\r\n", "\r\n-5\r\n-7\r\n");
    EXPECT_TRUE(takesLayout(layout));
    EXPECT_EQ(form.AMark.UBound(), 0);
    EXPECT_EQ(form.AText.UBound(), 0);
}

TEST_F(HostileFiles, ZeroBytesInALayoutAreTold) {
    startOnBlankCard();
    EXPECT_FALSE(takesLayout(replaced(fewFields(), "\r\n4\r\n", std::string("\r\n\0004\r\n", 6))));
    expectNothingElseTouched();
}

TEST_F(HostileFiles, ALineOfTenMegabytesInALayoutIsPassedOver) {
    startOnBlankCard();
    EXPECT_TRUE(takesLayout("'" + std::string(10'000'000, 'x') + "\r\n" + fewFields()));
    EXPECT_EQ(form.AMark.UBound(), 4);
    EXPECT_FALSE(takesLayout(std::string(10'000'000, '9') + "\r\n" + fewFields()));
}

TEST_F(HostileFiles, OptionsCutOffAtAnyByteAreTaken) {
    startOnBlankCard();
    IniWrite(form);
    const std::string whole = dataFileContent("ZEV.Ini");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        takeOptions(whole.substr(0, length));
    }
    EXPECT_EQ(form.ZoomLevel, 5);
    EXPECT_EQ(form.TextFontName, "Arial");
    expectNothingElseTouched();
}

TEST_F(HostileFiles, OptionsOfRandomBytesAreTaken) {
    startOnBlankCard();
    std::mt19937 random(3);
    for (int i = 0; i < 200; ++i) takeOptions(randomBytes(random, 400));
    EXPECT_EQ(form.ZoomLevel, 5);
    expectNothingElseTouched();
}

TEST_F(HostileFiles, EveryOptionTakesAnyValue) {
    startOnBlankCard();
    for (const char* key : {"Name", "Number", "Mono", "Color", "Zoom", "Fit", "FontSize", "Bold",
                            "PrintAlt", "Printer", "PaperBin", "Normalfont", "Narrowfont",
                            "Symfont", "Suitfont", "Fillincheckmarks", "ColorScheme", "smaller"}) {
        for (const std::string& value :
             {std::string("99999999999999999999"), std::string("-99999999999999999999"),
              std::string("1e999"), std::string("nan"), std::string(3, '\0'),
              std::string(1000, '\xFF')}) {
            takeOptions(std::string(key) + "=" + value + "\r\n");
        }
    }
    EXPECT_EQ(form.ZoomLevel, 5);
    EXPECT_EQ(form.ColorScheme, 0);
    EXPECT_EQ(form.TextFontName, "Arial");
    expectNothingElseTouched();
}

TEST_F(HostileFiles, OptionsWithALineOfTenMegabytesAreTaken) {
    startOnBlankCard();
    takeOptions("Name=" + std::string(10'000'000, 'x') + "\r\nZoom=6\r\n");
    EXPECT_EQ(form.ZoomLevel, 6);
    EXPECT_EQ(form.MyName.size(), 10'000'000U);
}

} // namespace
} // namespace zev::test
