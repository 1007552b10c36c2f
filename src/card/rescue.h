// The files of all journals: those of living copies of the program, and those that a dead one left.
#pragma once

#include <filesystem>
#include <optional>

#include "card/rescue_file.h"
#include "toolkit/base/file_lock.h"

namespace zev {

struct Zevlin;

/// What a dead copy left, held so that no other copy offers it too.
struct Rescue {
    RescuedCard card;
    std::filesystem::path file;
    toolkit::FileLock lock;
};

/// Asks the player about what dead copies left, the oldest first, until one is wanted back. What
/// they give up is removed; what they don't decide on is asked again at the next start. A temporary
/// card that was left without any journal is offered likewise.
[[nodiscard]] std::optional<Rescue> offerRescue(Zevlin& form);

/// Shows the card with its name, changed; its file becomes the journal's.
void openRescued(Zevlin& form, Rescue rescue);

} // namespace zev
