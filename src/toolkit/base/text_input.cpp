#include "toolkit/base/text_input.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "toolkit/base/ansi.h"
#include "toolkit/base/error.h"
#include "toolkit/base/number_text.h"

namespace toolkit {
namespace {

/// The place of the first of the characters, or the text's end. A value is too short for a search
/// in the library to pay.
template <typename... Characters>
std::size_t placeOf(std::string_view text, Characters... characters) {
    const auto is = [=](char one) { return ((one == characters) || ...); };
    return static_cast<std::size_t>(std::ranges::find_if(text, is) - text.begin());
}

} // namespace

TextInput::TextInput(std::string content) : content_(std::move(content)) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (content_.starts_with(byteOrderMark)) position_ = byteOrderMark.size();
}

std::size_t TextInput::find(std::string_view text) {
    if (soughtText_ != text || !sought_.holdsAt(position_)) {
        soughtText_ = text;
        sought_ = {position_, content_.find(text, position_)};
    }
    return sought_.place;
}

// Kept like the place of a text, as the rest of a line may be read again and again.
std::size_t TextInput::lineEnd() {
    if (!lineEnd_.holdsAt(position_)) {
        const std::string_view rest = std::string_view(content_).substr(position_);
        lineEnd_ = {position_, position_ + placeOf(rest, '\r', '\n')};
    }
    return lineEnd_.place;
}

std::string_view TextInput::readLine() {
    if (atEnd()) throw RunTimeError(Failure::InputPastEnd);
    const std::string_view line =
        std::string_view(content_).substr(position_, lineEnd() - position_);
    position_ += line.size();
    skipLineEnd();
    return line;
}

std::string TextInput::readText() {
    skipBlanks();
    if (atEnd()) throw RunTimeError(Failure::InputPastEnd);
    const std::string_view rest = std::string_view(content_).substr(position_);
    const bool quoted = rest.front() == '"';
    const std::string_view value = quoted ? rest.substr(1, rest.find('"', 1) - 1)
                                          : rest.substr(0, placeOf(rest, ',', '\r', '\n'));
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
