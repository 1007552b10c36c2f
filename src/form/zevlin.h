// The main form: the program's whole state, as plain fields that each subsystem declares.
#pragma once

#include "form/app_state.h"
#include "form/card_state.h"
#include "form/design_state.h"
#include "form/help_state.h"
#include "form/layout_state.h"
#include "form/marks_state.h"
#include "form/output_state.h"
#include "form/text_state.h"
#include "form/view_state.h"
#include "toolkit/model/form.h"

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
    // Events are wired to this object by reference.
    Zevlin(const Zevlin&) = delete;
    Zevlin& operator=(const Zevlin&) = delete;
};

} // namespace zev
