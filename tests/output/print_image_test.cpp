#include "output/print_image.h"

#include "output/print_test.h"

namespace zev::test {
namespace {

class PrintImageOnThePage : public PrintTest {};

TEST_F(PrintImageOnThePage, TracesItsFiguresAndItsResults) {
    start();
    print();
    EXPECT_TRUE(traced("0, 0, 4860, 5046.611 PrintImage "));
    EXPECT_TRUE(traced("  PrintImage results: Set=1, Stretch=1, SelObj=1"));
}

TEST_F(PrintImageOnThePage, WithoutADocumentItDrawsNothing) {
    start();
    PrintImage(form, std::make_shared<const toolkit::CardRecording>(), {0, 0, 10.5F, 11.5F});
    EXPECT_TRUE(traced("0, 0, 10.5, 11.5 PrintImage "));
    EXPECT_TRUE(traced("  PrintImage results: Set=1, Stretch=0, SelObj=1"));
}

TEST_F(PrintImageOnThePage, AFigureBeyondThirtyTwoBitsIsAFailureOfItsOwn) {
    start();
    announceError("Error in PrintImage: ");
    PrintImage(form, std::make_shared<const toolkit::CardRecording>(), {0, 0, 3e9F, 11.5F});
    EXPECT_TRUE(traced("Error in PrintImage: 0, 0, 3000000000, 11.5 -- 6, Overflow"));
    EXPECT_FALSE(traced("  PrintImage results: Set=1, Stretch=0, SelObj=1"));
}

} // namespace
} // namespace zev::test
