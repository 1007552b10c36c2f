// The clipboard as edit boxes use it. Internal to the toolkit's sources.
#pragma once

#include <string>
#include <string_view>

#include <QtGui/QClipboard>

#include "toolkit/text/typed_text.h"

namespace toolkit {

/// What a box copies or cuts, or what is selected in it.
void putText(std::string_view text, QClipboard::Mode mode);

/// The text as it goes in there: as it is where it comes from the program itself.
[[nodiscard]] std::string takeText(QClipboard::Mode mode, const TextAround& around);

} // namespace toolkit
