// The main form: the program's whole state, as plain fields that each subsystem declares.
#pragma once

#include "app/app_state.h"
#include "card/card_state.h"
#include "design/design_state.h"
#include "help/help_state.h"
#include "layout/layout_state.h"
#include "marks/marks_state.h"
#include "output/output_state.h"
#include "text/text_state.h"
#include "toolkit/form.h"
#include "view/view_state.h"

namespace zev {

struct Zevlin : toolkit::Form,
                AppState,
                LayoutState,
                CardState,
                TextState,
                MarksState,
                DesignState,
                ViewState,
                OutputState,
                HelpState {
    Zevlin() = default;
    // Events are wired to this very object.
    Zevlin(const Zevlin&) = delete;
    Zevlin& operator=(const Zevlin&) = delete;
};

} // namespace zev
