// The library's own work on a PDF file. Internal to the toolkit's sources.
#pragma once

#include <memory>
#include <string>

class QPainter;

namespace toolkit {

class PdfWriting {
  public:
    explicit PdfWriting(int dotsPerInch);
    ~PdfWriting();
    PdfWriting(const PdfWriting&) = delete;
    PdfWriting& operator=(const PdfWriting&) = delete;

    /// The title is in the code page.
    void describe(const std::string& title);
    /// Paints in dots on one more page, whose sizes are in points. Failure 482.
    [[nodiscard]] QPainter& newPage(double width, double height);
    /// The file's content. Failure 482.
    [[nodiscard]] std::string finish();

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace toolkit
