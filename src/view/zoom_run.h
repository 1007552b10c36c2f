// What a zoom and a fit have in common.
#pragma once

#include "app/zevlin.h"
#include "layout/position.h"

namespace zev {

/// Does `body` as a zoom: the open editor is committed first, and what it reaches can tell it from
/// the player's own doing.
template <typename Body>
void runZoom(Zevlin& form, Body body) {
    const struct Flag {
        explicit Flag(bool& flag) : zooming(flag) { zooming = true; }
        Flag(const Flag&) = delete;
        Flag& operator=(const Flag&) = delete;
        ~Flag() { zooming = false; }
        bool& zooming;
    } zooming(form.Zooming);
    PositionSave(form);
    body();
    PositionRestore(form);
}

} // namespace zev
