// Texts on their way between the program and Qt. Internal to the toolkit's sources.
#pragma once

#include <string>
#include <string_view>

#include <QtCore/QString>

#include "toolkit/base/ansi.h"

namespace toolkit {

[[nodiscard]] inline QString qString(std::string_view text) {
    const std::string utf8 = utf8FromAnsi(text);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// One byte for each character of the code page, "?" for others.
[[nodiscard]] inline std::string ansiText(const QString& text) {
    return ansiFromUtf8(text.toStdString());
}

} // namespace toolkit
