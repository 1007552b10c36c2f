#include "toolkit/print/pdf_artworks.h"

#include <map>
#include <optional>
#include <utility>

#include "toolkit/base/error.h"
#include "toolkit/print/pdf_form.h"
#include "toolkit/print/pdf_writing.h"
#include "toolkit/window/card/qt_drawing_painter.h"

namespace toolkit {
namespace {

/// Its points are the drawing's pixels.
std::optional<PdfForm> formOf(const Drawing& drawing) {
    constexpr int pointsPerInch = 72;
    PdfWriting writing(pointsPerInch);
    paintDrawing(writing.newPage(drawing.width, drawing.height), drawing);
    const auto file = PdfFile::read(writing.finish());
    return file ? PdfForm::ofFirstPage(*file) : std::nullopt;
}

struct KnownForm {
    std::shared_ptr<const Drawing> drawing;
    std::optional<PdfForm> form;
};

const std::optional<PdfForm>& knownForm(const std::shared_ptr<const Drawing>& drawing) {
    static KnownForm last;
    if (last.drawing != drawing) last = {.drawing = drawing, .form = formOf(*drawing)};
    return last.form;
}

/// Paper of another colour is painted with the card, and would hide what is behind it.
bool canBeBehind(const CardRecording& card) {
    return card.picture && card.artwork && card.paper == white && card.width > 0 &&
           card.height > 0 && card.artwork->width > 0 && card.artwork->height > 0 &&
           knownForm(card.artwork).has_value();
}

} // namespace

PdfArtworks::Shown PdfArtworks::artworkOf(const PlacedCard& placed) {
    const CardRecording& card = *placed.card;
    const double scale = static_cast<double>(card.picture->width()) / card.artwork->width;
    return {.drawing = card.artwork,
            .pointsPerPixelAcross = scale * placed.width / card.width,
            .pointsPerPixelDown = scale * placed.height / card.height,
            .left = placed.left,
            .top = placed.top};
}

Page PdfArtworks::takenOff(Page page) {
    std::vector<Shown>& shown = shown_.emplace_back();
    for (PlacedCard& placed : page.cards) {
        if (!canBeBehind(*placed.card)) continue;
        shown.push_back(artworkOf(placed));
        auto rest = std::make_shared<CardRecording>(*placed.card);
        rest->picture.reset();
        rest->artwork.reset();
        placed.card = std::move(rest);
    }
    return page;
}

void PdfArtworks::putBehind(const PdfFile& file, PdfRevision& revision) const {
    std::map<std::shared_ptr<const Drawing>, int> forms;
    const std::vector<int> pages = file.pages();
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        if (shown_[i].empty()) continue;
        const auto height = i < pages.size() ? heightOfPage(file, pages[i]) : std::nullopt;
        if (!height) throw RunTimeError(Failure::PrinterError);
        std::vector<ShownForm> behind;
        for (const Shown& shown : shown_[i]) {
            const auto [form, isNew] = forms.try_emplace(shown.drawing, 0);
            if (isNew) form->second = knownForm(shown.drawing)->addTo(revision);
            const double down = shown.pointsPerPixelDown * shown.drawing->height;
            behind.push_back({.form = form->second,
                              .across = shown.pointsPerPixelAcross,
                              .up = shown.pointsPerPixelDown,
                              .left = shown.left,
                              .foot = *height - shown.top - down});
        }
        if (!showBehind(file, revision, pages[i], behind))
            throw RunTimeError(Failure::PrinterError);
    }
}

} // namespace toolkit
