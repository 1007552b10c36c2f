// Pages as a PDF file.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "toolkit/print/page.h"

namespace toolkit {

/// What a file says of itself.
struct PdfFacts {
    std::string title; ///< in the code page
    /// When it was made, as 20261122203300Z: the present moment by itself; an empty one isn't told.
    std::optional<std::string> date{};
};

/// A file of as many pages as one likes. What is on a page isn't needed any more once it was added.
/// Failure 482.
class PdfDocument {
  public:
    explicit PdfDocument(PdfFacts facts);
    ~PdfDocument();
    PdfDocument(const PdfDocument&) = delete;
    PdfDocument& operator=(const PdfDocument&) = delete;

    void addPage(const Page& page);
    /// The file's content. Nothing can be added any more.
    [[nodiscard]] std::string finish();

  private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

/// A whole file, with the title in the code page. Texts are texts, which can be searched and read
/// aloud, their fonts embedded; pictures are stored without loss at their own resolution.
[[nodiscard]] std::string pdfDocument(std::span<const Page> pages, std::string_view title);

} // namespace toolkit
