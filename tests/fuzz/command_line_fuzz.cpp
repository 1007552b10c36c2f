// Any bytes as the command line, the name of a card that is looked for in the data folder only.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "app/command_line.h"
#include "card/card_names.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    const std::string name = zev::cardNameOf(line);
    // The name must not hold anything that leads out of the folder.
    if (name.find_first_of("\\/.") != std::string::npos) std::abort();
    static_cast<void>(zev::hasForbiddenCharacter(name));
    static_cast<void>(zev::cleanedCardName(line));
    static_cast<void>(zev::splitPlayerId(line));
    return 0;
}
