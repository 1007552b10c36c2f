#include "card/file_seen.h"

#include "form/zevlin.h"
#include "toolkit/files.h"

namespace zev {

std::filesystem::path cardPath(const Zevlin& form) {
    return toolkit::resolveFile(form.DataFolder, form.CardName + std::string(cardExtension));
}

bool cardExists(const Zevlin& form, const std::string& name) {
    return toolkit::findFile(form.DataFolder, name + std::string(cardExtension)).has_value();
}

void rememberFile(Zevlin& form, const std::filesystem::path& file, std::string_view content) {
    form.CardFileSeen = SeenFile{.cardName = form.CardName, .state = fileState(file, content)};
}

void rememberNoFile(Zevlin& form) {
    form.CardFileSeen = SeenFile{.cardName = form.CardName, .state = {}};
}

bool isChangedByAnother(const Zevlin& form, const std::filesystem::path& file) {
    const auto& seen = form.CardFileSeen;
    return seen && seen->cardName == form.CardName && isChanged(file, seen->state);
}

} // namespace zev
