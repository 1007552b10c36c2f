#include "form/services.h"

#include "form/settings.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/version.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/system.h"

namespace zev {

void AppVersion(Zevlin& form) {
    procedure(form, "AppVersion", [&] {
        form.ProgramVersion = versionText(versionMajor, versionMinor, versionRevision);
    });
}

std::string WinVer(Zevlin& form) {
    std::string version;
    procedure(form, "WinVer", [&] { version = toolkit::systemVersion(); });
    return version;
}

bool IsProductionEnvironment(Zevlin& form) {
    Traceit(form, "IsProductionEnvironment");
    return productionBuild;
}

std::filesystem::path currentFolder(const Zevlin& form) {
    std::error_code ignored;
    if (std::filesystem::is_directory(form.DataFolder, ignored)) return form.DataFolder;
    return std::filesystem::current_path(ignored);
}

} // namespace zev
