#include "output/make_gray.h"

#include "output/print_test.h"
#include "toolkit/model/drawing.h"

namespace zev::test {
namespace {

class MakeGrayOfTheCard : public PrintTest {};

TEST_F(MakeGrayOfTheCard, RecoloursThePictureAndNotTheLabels) {
    start();
    toolkit::PictureBox box;
    box.Picture = std::make_shared<const toolkit::Bitmap>(3, 3, toolkit::rgb(195, 17, 25));
    MakeGray(form, box);
    const auto color = box.Picture->pixel(1, 1).value();
    EXPECT_EQ(toolkit::redOf(color), toolkit::blueOf(color));
    EXPECT_TRUE(traced("MakeGray"));
    EXPECT_EQ(form.AMark[3].ForeColor, form.ColorBlue);
}

TEST_F(MakeGrayOfTheCard, RecoloursTheArtworkLikeThePicture) {
    start();
    toolkit::PictureBox box;
    constexpr toolkit::Color red = toolkit::rgb(195, 17, 25);
    box.Picture = std::make_shared<const toolkit::Bitmap>(3, 3, red);
    box.Artwork = [] {
        return std::make_shared<const toolkit::Drawing>(
            toolkit::Drawing{3, 3, {toolkit::FilledRectangle{red, 0, 0, 3, 3}}});
    };
    MakeGray(form, box);
    const toolkit::DrawnItem item = box.Artwork()->items.at(0);
    EXPECT_EQ(std::get<toolkit::FilledRectangle>(item).color, box.Picture->pixel(1, 1));
}

TEST_F(MakeGrayOfTheCard, ABoxWithoutAPictureStaysSo) {
    start();
    toolkit::PictureBox box;
    MakeGray(form, box);
    EXPECT_EQ(box.Picture, nullptr);
}

} // namespace
} // namespace zev::test
