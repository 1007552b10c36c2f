// The artworks on the pages of a PDF file. Internal to the toolkit's sources.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/print/page.h"
#include "toolkit/print/pdf_file.h"

namespace toolkit {

/// An artwork is the greatest part of a card, and all cards have the same: a file holds one, which
/// its pages show, and a run makes one.
class PdfArtworks {
  public:
    /// The page, which is the file's next one, without those that will be put behind it.
    [[nodiscard]] Page takenOff(Page page);
    /// Failure 482.
    void putBehind(const PdfFile& file, PdfRevision& revision) const;

  private:
    /// In points from the page's top left corner.
    struct Shown {
        std::shared_ptr<const Drawing> drawing;
        double pointsPerPixelAcross = 1;
        double pointsPerPixelDown = 1;
        double left = 0;
        double top = 0;
    };
    [[nodiscard]] static Shown artworkOf(const PlacedCard& placed);

    std::vector<std::vector<Shown>> shown_; ///< by page
};

} // namespace toolkit
