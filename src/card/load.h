// Loading a card.
#pragma once

#include <filesystem>

namespace zev {

struct Zevlin;

/// Loads the card named by CardName into the fields, which the caller has cleared. What was read
/// before a failure stays; a card without records is told to be bad.
void GetCardFile(Zevlin& form);

/// Loads the card in a file, wherever it lies, into the fields, which the caller has cleared. The
/// card keeps the name that the form has for it. Failures of reading a file, and of CardReader.
void loadCardFrom(Zevlin& form, const std::filesystem::path& file);

} // namespace zev
