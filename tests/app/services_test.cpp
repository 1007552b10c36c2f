#include "app/services.h"

#include "app/settings.h"
#include "layout/version.h"
#include "support/form_test.h"

namespace zev::test {
namespace {

class Services : public FormTest {};

TEST_F(Services, TheVersionIsTheBuildsAndNeverSortsBelowTheSwitches) {
    wireOnly();
    AppVersion(form);
    EXPECT_EQ(form.ProgramVersion, std::to_string(versionMajor) + "." +
                                       std::to_string(versionMinor) + "." +
                                       std::string(versionRevision));
    EXPECT_FALSE(isBelow(form.ProgramVersion, switchesVersion));
    EXPECT_TRUE(traced("AppVersion"));
}

TEST_F(Services, ARevisionOfFourCharactersShowsItsLastTwoInBrackets) {
    EXPECT_EQ(versionText(1, 0, "181"), "1.0.181");
    EXPECT_EQ(versionText(1, 0, "1812"), "1.0.18(12)");
}

TEST_F(Services, TheKindOfBuildIsWhatTheBuildSays) {
    wireOnly();
    EXPECT_EQ(IsProductionEnvironment(form), productionBuild);
}

} // namespace
} // namespace zev::test
