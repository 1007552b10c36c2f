#include "card/file_seen.h"

#include "form/zevlin.h"

namespace zev {

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
