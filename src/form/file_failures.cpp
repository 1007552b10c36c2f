#include "form/file_failures.h"

#include <algorithm>
#include <string>
#include <utility>

#include "form/zevlin.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/dialog.h"

namespace zev {
namespace {

std::string boxText(const Zevlin& form, const std::vector<std::string>& failures) {
    std::string text = "Zevlin could not use its folder '" + toolkit::displayText(form.DataFolder) +
                       "' as it should:\n";
    for (const std::string& line : failures) text += "\n    " + line;
    return text + "\n\nYour card is not affected.  Zevlin keeps it, and goes on.";
}

} // namespace

void noteFileFailure(Zevlin& form, std::string_view what, const toolkit::RunTimeError& failure) {
    std::string line = std::string(what) + ": " + failure.description();
    if (std::ranges::find(form.FileFailures, line) == form.FileFailures.end())
        form.FileFailures.push_back(std::move(line));
}

void forgetFileFailure(Zevlin& form, std::string_view what) {
    const std::string head = std::string(what) + ": ";
    std::erase_if(form.FileFailures,
                  [&head](const std::string& line) { return line.starts_with(head); });
}

void tellFileFailures(Zevlin& form) {
    const auto failures = std::exchange(form.FileFailures, {});
    if (failures == std::exchange(form.FileFailuresTold, failures) || failures.empty()) return;
    toolkit::tell(boxText(form, failures), toolkit::Icon::Exclamation);
}

} // namespace zev
