// What a zoom and a fit have in common.
#pragma once

#include "form/zevlin.h"
#include "layout/position.h"

namespace zev {

/// Sets Zooming for as long as it lives.
class ZoomFlag {
  public:
    explicit ZoomFlag(Zevlin& form) : form_(form) { form_.Zooming = true; }
    ZoomFlag(const ZoomFlag&) = delete;
    ZoomFlag& operator=(const ZoomFlag&) = delete;
    ~ZoomFlag() { form_.Zooming = false; }

  private:
    Zevlin& form_;
};

/// Does `body` as a zoom: the open editor is committed first, and Zooming tells what runs meanwhile
/// that it isn't a command of the player's.
template <typename Body>
void runZoom(Zevlin& form, Body body) {
    const ZoomFlag zooming(form);
    PositionSave(form);
    body();
    PositionRestore(form);
}

} // namespace zev
