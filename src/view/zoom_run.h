// What a zoom and a fit have in common.
#pragma once

#include "app/zevlin.h"
#include "layout/position.h"

namespace zev {

/// Does `body` as a zoom: the open editor is committed first, and what it reaches can tell it from
/// the player's own doing.
template <typename Body>
void runZoom(Zevlin& form, Body body) {
    form.Zooming = true;
    PositionSave(form);
    body();
    PositionRestore(form);
    form.Zooming = false;
}

} // namespace zev
