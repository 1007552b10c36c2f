#include "card/file_seen.h"

#include "form/zevlin.h"
#include "toolkit/base/folder.h"

namespace zev {

std::optional<std::filesystem::path> findCard(const Zevlin& form, std::string_view name) {
    return toolkit::findFile(form.DataFolder, std::string(name).append(cardExtension));
}

std::filesystem::path cardPath(const Zevlin& form, std::string_view name) {
    return toolkit::resolveFile(form.DataFolder, std::string(name).append(cardExtension));
}

std::filesystem::path cardPath(const Zevlin& form) { return cardPath(form, form.CardName); }

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
