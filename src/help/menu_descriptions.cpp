#include "help/menu_descriptions.h"

namespace zev {

std::vector<std::string> menuDescriptions() {
    return {
        "~",
        "Boldface~Use boldface in all text areas. You will not be able to use 'Regular' face for "
        "individual fields. This option will apply to all cards from now on, until you turn it "
        "off.",
        "Left-Justify~Left-justify all text areas. You still will be able to center individual "
        "fields. This option only affects the current card at this moment. To re-center "
        "everything, turn this off.",
        "Fill-in Checkmarks~Use solid squares instead of checkmarks. The checkmarks usually are "
        "more noticeable.",
        "Use alternate~If regular printing doesn't work, select this option, then use 'Printer "
        "Setup' to select your printer, and try printing again.",
        "Show the Design~Normally never needed, this gives you access to the Design menu, which "
        "lets you change the positions of fields and add new ones.",
        "Export Image~Creates an Image file (a picture) of your filled-in card, which you can "
        "email to someone else. GIF files are the smallest, BMP's are much larger.",
        "Copy to Clipboard~Places an Image of your filled-in card on the Clipboard, allowing you "
        "to Paste that Image into any program (such as WORD) that supports images.",
        // The menu says "My Name", so this text is never shown. That is deliberate.
        "My ID~You can enter your name and/or ACBL number once, and that information will appear "
        "on all cards from now on.",
        "Partner's ~You can enter the name and/or ACBL number of the partner who will share this "
        "card with you, and that information will be used with the 'Print Partner's Card' option "
        "(for this card).",
        "Color Management~Normally, the 'pen' color used to complete a card follows ACBL "
        "standards: black=normal; red=alertable; blue=no trump. This lets you select ONE "
        "(non-standard) 'pen' color instead of those.",
    };
}

std::string descriptionIn(std::span<const std::string> table, std::string_view caption) {
    if (table.empty() || table.front().size() != 1) return {};
    const char separator = table.front().front();
    for (const std::string_view entry : table.subspan(1)) {
        const auto end = entry.find(separator);
        if (end == std::string_view::npos) continue;
        if (entry.substr(0, end) == caption.substr(0, end))
            return std::string(entry.substr(end + 1));
    }
    return {};
}

} // namespace zev
