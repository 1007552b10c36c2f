#include "toolkit/text_input.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "toolkit/ansi.h"
#include "toolkit/error.h"
#include "toolkit/number_text.h"

namespace toolkit {

TextInput::TextInput(std::string content) : content_(std::move(content)) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (content_.starts_with(byteOrderMark)) position_ = byteOrderMark.size();
}

std::string_view TextInput::readLine() {
    if (atEnd()) throw RunTimeError(Failure::InputPastEnd);
    const std::string_view rest = std::string_view(content_).substr(position_);
    const std::size_t length = std::min(rest.find_first_of("\r\n"), rest.size());
    position_ += length;
    skipLineEnd();
    return rest.substr(0, length);
}

std::string TextInput::readText() {
    skipBlanks();
    if (atEnd()) throw RunTimeError(Failure::InputPastEnd);
    const std::string_view rest = std::string_view(content_).substr(position_);
    const bool quoted = rest.front() == '"';
    const std::string_view value = quoted ? rest.substr(1, rest.find('"', 1) - 1)
                                          : rest.substr(0, rest.find_first_of(",\r\n"));
    position_ = std::min(position_ + value.size() + (quoted ? 2 : 0), content_.size());
    skipSeparator();
    return std::string(value);
}

double TextInput::readDouble() {
    const std::string value = readText();
    if (trim(value).empty()) return 0;
    const auto number = wholeNumber(value);
    if (!number) throw RunTimeError(Failure::TypeMismatch);
    return *number;
}

std::int16_t TextInput::readInteger() { return toInteger16(readDouble()); }

float TextInput::readNumber() {
    const double number = readDouble();
    if (std::abs(number) > std::numeric_limits<float>::max()) throw RunTimeError(Failure::Overflow);
    return static_cast<float>(number);
}

void TextInput::skipBlanks() {
    while (!atEnd() && (content_[position_] == ' ' || content_[position_] == '\t')) ++position_;
}

void TextInput::skipLineEnd() {
    if (!atEnd() && content_[position_] == '\r') {
        ++position_;
        if (!atEnd() && content_[position_] == '\n') ++position_;
    } else if (!atEnd() && content_[position_] == '\n') {
        ++position_;
    }
}

void TextInput::skipSeparator() {
    skipBlanks();
    if (!atEnd() && content_[position_] == ',')
        ++position_;
    else
        skipLineEnd();
}

} // namespace toolkit
