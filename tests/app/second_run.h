// The program started again in the same folders.
#pragma once

#include <memory>

#include "app/form_load.h"
#include "app/wiring.h"
#include "form/zevlin.h"
#include "toolkit/window/window.h"

namespace zev::test {

/// One run of the program; the run before it must be over.
struct SecondRun {
    explicit SecondRun(std::unique_ptr<toolkit::Window>& before) {
        before.reset();
        window = std::make_unique<toolkit::Window>(wire(form));
        Form_Load(form, {});
    }
    Zevlin form;
    std::unique_ptr<toolkit::Window> window;
};

} // namespace zev::test
