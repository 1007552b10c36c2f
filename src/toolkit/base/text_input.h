// Reading a text file by lines and by comma-separated values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace toolkit {

/// A stream over the content of a text file in the ANSI code page. Lines end in CR LF, LF or CR; a
/// byte-order mark at the start is skipped; the last line may lack its end.
///
/// Values are a stream of their own, whatever the lines: leading blanks are skipped, a value ends
/// at a comma or a line end, a quoted string runs to its closing quote and may hold both.
class TextInput {
  public:
    explicit TextInput(std::string content);

    [[nodiscard]] bool atEnd() const { return position_ >= content_.size(); }
    [[nodiscard]] std::size_t position() const { return position_; }
    void seek(std::size_t position) { position_ = position; }

    /// The place of the next `text` at or behind the position; npos where none follows. The answer
    /// for the text asked for last is kept: asking at every value of a long line costs one search.
    [[nodiscard]] std::size_t find(std::string_view text);

    /// The next line without its end. Failure 62 at the end of the file.
    [[nodiscard]] std::string_view readLine();

    /// The next value as a text, quotes removed. Failure 62 at the end of the file.
    [[nodiscard]] std::string readText();

    /// The next value as a 16-bit integer; fractions round half to even, an empty value is 0.
    /// Failure 62 at the end of the file, 13 where the value is no number, 6 beyond 16 bits.
    [[nodiscard]] std::int16_t readInteger();

    /// The next value as a number; the same failures, no bounds but those of float.
    [[nodiscard]] float readNumber();

  private:
    /// Where the next sought thing is for every position from `from` to `place`.
    struct Found {
        std::size_t from = 1;
        std::size_t place = 0;
        [[nodiscard]] bool holdsAt(std::size_t position) const {
            return from <= position && position <= place;
        }
    };

    [[nodiscard]] std::size_t lineEnd();
    [[nodiscard]] double readDouble();
    void skipBlanks();
    void skipLineEnd();
    void skipSeparator();

    std::string content_;
    std::size_t position_ = 0;
    Found lineEnd_;
    Found sought_;
    std::string soughtText_;
};

} // namespace toolkit
