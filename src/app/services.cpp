#include "app/services.h"

#include "app/settings.h"
#include "app/trace.h"
#include "app/zevlin.h"
#include "layout/version.h"

namespace zev {

void AppVersion(Zevlin& form) {
    Traceit(form, "AppVersion");
    trapped(form, "Error in AppVersion: #", [&] {
        form.ProgramVersion = versionText(versionMajor, versionMinor, versionRevision);
    });
}

bool IsProductionEnvironment(Zevlin& form) {
    Traceit(form, "IsProductionEnvironment");
    return productionBuild;
}

} // namespace zev
