// A form with a list over its card.
#pragma once

#include "fixture.h"

namespace window_test {

class ListTest : public WindowTest {
  protected:
    /// At 100, 100 of the form, that is at 90, 90 of the card.
    void openList(std::vector<std::string> rows) {
        list.Move(px(100), px(100), px(200), px(100));
        list.Font = {.Name = "Arial", .Size = 9};
        list.List = std::move(rows);
        list.Visible = true;
        window->update();
        log.clear();
    }

    [[nodiscard]] float middleOfRow(int row) const {
        const int height = static_cast<int>(toolkit::textHeight(list.Font) / px(1));
        return px(91 + row * height + height / 2);
    }
};

} // namespace window_test
