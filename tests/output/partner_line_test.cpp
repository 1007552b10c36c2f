#include "output/partner_line.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(PartnerLine, ThePartnerComesFirst) {
    EXPECT_EQ(partnerCaption({.partnerName = "Pat", .myName = "Joe"}), "Pat && Joe");
    EXPECT_EQ(partnerCaption({.partnerName = "Pat"}), "Pat");
}

TEST(PartnerLine, TheNumberStandsTenBlanksBehind) {
    EXPECT_EQ(partnerCaption({.partnerName = "Pat", .partnerNumber = "77", .myName = "Joe"}),
              "Pat && Joe          #77");
    EXPECT_EQ(partnerCaption({.partnerNumber = "77", .cardName = "Jones"}), "Jones");
}

TEST(PartnerLine, WithoutAPartnersNameTheCardGivesIt) {
    EXPECT_EQ(partnerCaption({.myName = "Smith", .cardName = "Jones"}), "Jones && Smith");
    EXPECT_EQ(partnerCaption({.cardName = " Jones "}), "Jones");
}

TEST(PartnerLine, WithNeitherItStays) {
    EXPECT_EQ(partnerCaption({.myName = "Smith", .caption = "as it was"}), "as it was");
}

} // namespace
} // namespace zev
