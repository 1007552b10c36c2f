#include <algorithm>

#include "card/write_card.h"
#include "card_form_test.h"
#include "layout/write_layout.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

// A place of the card without fields, twips.
constexpr float bareX = 750;
constexpr float bareY = 13500;

void append(std::string& file, const std::vector<std::string>& records) {
    file += std::to_string(records.size()) + "\r\n";
    for (const std::string& record : records) file += record + "\r\n";
}

std::string layoutOfSixFields() {
    return smallLayout({{.left = 100, .top = 100, .width = 20, .height = 20},
                        {.left = 200, .top = 100, .width = 20, .height = 20, .color = 2},
                        {.left = 300, .top = 100, .width = 20, .height = 20, .color = 3}},
                       {{.left = 100, .top = 300, .width = 300, .height = 20},
                        {.left = 100, .top = 400, .width = 300, .height = 20, .color = 2},
                        {.left = 100, .top = 600, .width = 600, .height = 40, .size = 3}});
}

} // namespace

std::string cardFile(const CardLines& lines) {
    std::string file;
    if (!lines.version.empty()) file += "' Program version: " + lines.version + "\r\n";
    file += lines.partner + "\r\n";
    append(file, lines.marks);
    append(file, lines.texts);
    return file;
}

CardFormTest::CardFormTest() { writeLayout(layoutOfSixFields()); }

void CardFormTest::openCard(const std::string& name, const CardLines& lines) {
    writeCard(name, cardFile(lines));
    openNamed(name);
}

void CardFormTest::openNamed(const std::string& name) {
    answerName(name);
    choose("File>Open...");
}

void CardFormTest::choose(std::string_view captionPath) {
    EXPECT_TRUE(toolkit::test::chooseMenu(captionPath)) << captionPath;
}

void CardFormTest::typeInOpenField(int field, std::string_view utf8) {
    clickText(field);
    form.CText.SelStart = form.LText.SelStart = 0;
    form.CText.SelLength = static_cast<int>(form.CText.Text.size());
    form.LText.SelLength = static_cast<int>(form.LText.Text.size());
    toolkit::test::typeText(utf8);
}

void CardFormTest::typeInto(int field, std::string_view utf8) {
    typeInOpenField(field, utf8);
    toolkit::test::click(bareX, bareY);
}

testing::AssertionResult CardFormTest::tracedInOrder(const std::vector<std::string>& lines) const {
    const auto ring = traceLines();
    if (std::search(ring.begin(), ring.end(), lines.begin(), lines.end()) != ring.end())
        return testing::AssertionSuccess();
    auto failure = testing::AssertionFailure() << "the trace tells:";
    for (const std::string& line : ring) failure << "\n  " << line;
    return failure;
}

} // namespace zev::test
