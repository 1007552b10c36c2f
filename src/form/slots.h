// Procedures that lie on floors above those that call them. The wiring sets each of them once.
#pragma once

#include <functional>

namespace zev {

struct ProcedureSlots {
    std::function<void()> initialize; ///< Initialize, which a rebuild runs again
    std::function<void()>
        toggleDesignMode; ///< MShowShapes_Click: a rebuild and a save leave the mode
    std::function<void()> restorePicture; ///< the card's picture at the view's size
    std::function<void()> ringJournal;    ///< writes the journal when a change's alarm goes off
};

} // namespace zev
