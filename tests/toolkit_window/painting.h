// Labels as blocks of colour, and what is found of them on the card.
#pragma once

#include "fixture.h"

namespace window_test {

constexpr toolkit::Color red = toolkit::rgb(255, 0, 0);
constexpr toolkit::Color blue = toolkit::rgb(0, 0, 255);
constexpr toolkit::Color grey = toolkit::rgb(200, 200, 200);

class PaintTest : public WindowTest {
  protected:
    static void block(toolkit::Label& label, int left, int top, int width, int height,
                      toolkit::Color color, int stack = 0) {
        place(label, left, top, width, height, stack);
        label.BackStyle = toolkit::BackStyle::Opaque;
        label.BackColor = color;
    }

    /// The pixels that differ from white.
    struct Ink {
        int left = 1000000;
        int top = 1000000;
        int right = -1;
        int bottom = -1;
    };
    static Ink inkOf(const toolkit::Bitmap& shown) {
        Ink ink;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixel(x, y) != toolkit::white)
                    ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x),
                           std::max(ink.bottom, y)};
        return ink;
    }

    void write(toolkit::Label& label, const std::string& caption, toolkit::Alignment alignment) {
        label.Caption = caption;
        label.Alignment = alignment;
        label.Font = {.Name = "Arial", .Size = 12};
    }
};

} // namespace window_test
