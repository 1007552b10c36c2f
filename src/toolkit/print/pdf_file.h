// PDF files of the library, taken apart and put together. Internal to the toolkit's sources.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace toolkit {

/// The number that follows the first place of this word; none if there is no such place.
[[nodiscard]] std::optional<int> numberAfter(std::string_view object, std::string_view word);

/// The numbers of the objects that an object refers to, in their order.
[[nodiscard]] std::vector<int> referencesIn(std::string_view object);

/// The object with other numbers for those that it refers to. All of them must be given.
[[nodiscard]] std::string renumbered(std::string_view object, const std::map<int, int>& numbers);

/// A file with one table of its objects, as the library writes it.
class PdfFile {
  public:
    /// None if the file isn't of that kind.
    [[nodiscard]] static std::optional<PdfFile> read(std::string file);

    /// What stands in front of the objects.
    [[nodiscard]] std::string_view head() const;
    /// The catalog's number.
    [[nodiscard]] int root() const { return root_; }
    /// The number of what the file says of itself.
    [[nodiscard]] int info() const { return info_; }
    /// Objects are numbered from 1 to below this.
    [[nodiscard]] int size() const { return static_cast<int>(places_.size()); }
    /// What stands between "obj" and "endobj"; empty if there is no such object.
    [[nodiscard]] std::string_view object(int number) const;
    /// The numbers of the pages, in their order.
    [[nodiscard]] std::vector<int> pages() const;

  private:
    std::string content_;
    std::vector<std::size_t> places_; ///< by number
    std::vector<std::size_t> sorted_;
    std::size_t table_ = 0;
    int root_ = 0;
    int info_ = 0;
};

/// A file with changes. Its objects follow each other as they are referred to, so the same pages
/// give the same bytes: the library has its fonts in the order of its tables, which fonts of other
/// pages change.
class PdfRevision {
  public:
    /// The file must outlive it.
    explicit PdfRevision(const PdfFile& file) : file_(file), next_(file.size()) {}

    /// The number that the next new object gets.
    [[nodiscard]] int next() const { return next_; }
    /// The number of the new object.
    int add(std::string object);
    void replace(int number, std::string object);
    /// The whole file.
    [[nodiscard]] std::string finish() const;

  private:
    [[nodiscard]] std::string_view object(int number) const;
    [[nodiscard]] std::vector<int> inOrder() const;

    const PdfFile& file_;
    int next_;
    std::map<int, std::string> changed_;
};

} // namespace toolkit
