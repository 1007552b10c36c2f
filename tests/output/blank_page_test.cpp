#include "output/blank_page.h"

#include "output/print_test.h"

namespace zev::test {
namespace {

class BlankPage : public PrintTest {
  protected:
    std::string verdictOn(const toolkit::Bitmap& picture) {
        toolkit::PictureBox box;
        box.Width = static_cast<float>(picture.width()) * 15;
        box.Height = static_cast<float>(picture.height()) * 15;
        box.Picture = std::make_shared<const toolkit::Bitmap>(picture);
        form.TraceOn = true;
        TestBlankPage(form, "label", box);
        form.TraceOn = false;
        const std::string content = traceFile();
        const std::string head = "label TestBlankPage: page is ";
        const auto at = content.rfind(head);
        if (at == std::string::npos) return {};
        const auto end = content.find("; MemoryLoad=", at);
        return content.substr(at + head.size(), end - at - head.size());
    }
};

TEST_F(BlankPage, AWhitePictureIsBlank) {
    start();
    EXPECT_EQ(verdictOn(toolkit::Bitmap(300, 400)), "blank");
    EXPECT_TRUE(traced("TestBlankPage"));
}

TEST_F(BlankPage, APictureNarrowerThanItsColumnsIsUntestable) {
    start();
    EXPECT_EQ(verdictOn(toolkit::Bitmap(150, 400)), "untestable");
    EXPECT_EQ(verdictOn(toolkit::Bitmap(300, 100)), "untestable");
}

TEST_F(BlankPage, AColourBeforeTheEdgeIsNotBlank) {
    start();
    toolkit::Bitmap picture(150, 400);
    picture.setPixel(145, 80, toolkit::rgb(254, 255, 255));
    EXPECT_EQ(verdictOn(picture), "not blank");
    picture.setPixel(145, 80, toolkit::white);
    picture.setPixel(144, 80, toolkit::black);
    EXPECT_EQ(verdictOn(picture), "untestable");
}

TEST_F(BlankPage, WithoutTracingNothingIsTested) {
    start();
    form.Trace.clear();
    TestBlankPage(form, "label", form.P1);
    EXPECT_TRUE(form.Trace.empty());
}

} // namespace
} // namespace zev::test
