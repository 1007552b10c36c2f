// Design mode over a drawn card, for tests of auto-adjust.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "design/design_test.h"
#include "layout/field.h"

namespace zev::test {

/// Places are pixels from the card's corner, at whatever size.
class AutoAdjustTest : public DesignTest {
  protected:
    struct Place {
        float left = 0;
        float top = 0;
        friend bool operator==(const Place&, const Place&) = default;
    };
    using Places = std::vector<Place>;

    /// Design mode on a blank card as large as the real one.
    void designOnBlankCard() {
        design();
        blank();
    }
    void blank() {
        drawn = toolkit::Bitmap(static_cast<int>(form.P1.Width / twips()),
                                static_cast<int>(form.P1.Height / twips()));
    }
    void draw(int left, int top, int width, int height) {
        drawn.fill(left, top, width, height, toolkit::black);
    }
    /// A printed box of lines one pixel thick, its outer edges given.
    void drawBox(int left, int top, int right, int bottom) {
        draw(left, top, right - left + 1, 1);
        draw(left, bottom, right - left + 1, 1);
        draw(left, top, 1, bottom - top + 1);
        draw(right, top, 1, bottom - top + 1);
    }
    /// Chooses Auto-adjust with what was drawn as the card's picture.
    void run() {
        form.P1.Picture = std::make_shared<const toolkit::Bitmap>(drawn);
        choose("Design>Auto-adjust");
    }

    [[nodiscard]] float twips() const { return form.TwipsPerPixel; }
    [[nodiscard]] Place placeOf(const toolkit::Label& label) const {
        return {label.Left / twips(), label.Top / twips()};
    }
    [[nodiscard]] Places placesOf(const toolkit::ControlArray<toolkit::Label>& fields) const {
        Places places;
        for (int i = 1; i <= fields.UBound(); ++i) places.push_back(placeOf(fields[i]));
        return places;
    }
    /// How far a field has moved, pixels.
    [[nodiscard]] Place moved(const toolkit::Label& label, Place from) const {
        const Place now = placeOf(label);
        return {now.left - from.left, now.top - from.top};
    }

    /// The first column and the lowest row of the ink in a label, pixels of the card.
    [[nodiscard]] Place inkOf(const toolkit::Label& label, int kind, std::size_t size) const {
        const auto& offsets = form.FontOffsets[static_cast<std::size_t>(kind)][size];
        return {(label.Left + offsets[inkLeft]) / twips(),
                (label.Top + offsets[inkBottom]) / twips()};
    }
    [[nodiscard]] Place checkInk(int index) const {
        const auto size = form.MarkSizes[static_cast<std::size_t>(index)];
        return inkOf(form.AMark[index], ink_kind::check, static_cast<std::size_t>(size));
    }
    /// The row of a text's foot.
    [[nodiscard]] float footOf(int index, std::size_t size = 1) const {
        return inkOf(form.AText[index], ink_kind::text, size).top;
    }

    [[nodiscard]] int count(const std::string& line) const {
        int found = 0;
        for (const std::string& traced : traceLines()) found += traced == line ? 1 : 0;
        return found;
    }

    toolkit::Bitmap drawn;
};

} // namespace zev::test
