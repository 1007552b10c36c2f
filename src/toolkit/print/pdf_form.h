// A page of one PDF file as a part of the pages of another. Internal to the toolkit's sources.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>

#include "toolkit/print/pdf_file.h"

namespace toolkit {

/// What is drawn on a page, with the fonts that it needs: kept once in a file, and shown at any
/// number of places. Its points are counted from the page's foot upward.
class PdfForm {
  public:
    /// Of the first page; none if the file isn't of the kind that the library writes.
    [[nodiscard]] static std::optional<PdfForm> ofFirstPage(const PdfFile& file);

    /// The number of the object that the form is in the file.
    int addTo(PdfRevision& revision) const;

  private:
    std::map<int, std::string> objects_; ///< by their numbers where they come from
    int form_ = 0;                       ///< of these
};

/// A form at a place of a page. In points of the page, which are counted from its foot upward, too.
struct ShownForm {
    int form = 0;      ///< the number of its object
    double across = 1; ///< the length of the form's point
    double up = 1;
    double left = 0;
    double foot = 0;
};

/// How high the page is, in points; none if the page isn't of the kind that the library writes.
[[nodiscard]] std::optional<double> heightOfPage(const PdfFile& file, int page);

/// Shows forms on a page, behind all else. False if the page isn't of the kind that the library
/// writes.
[[nodiscard]] bool showBehind(const PdfFile& file, PdfRevision& revision, int page,
                              std::span<const ShownForm> shown);

} // namespace toolkit
