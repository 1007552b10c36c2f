// Slots that run procedures.
#pragma once

namespace zev {

struct Zevlin;

/// A slot that runs the procedure over this form with the arguments of the event.
template <typename... Arguments>
auto run(Zevlin& form, void (*procedure)(Zevlin&, Arguments...)) {
    return [&form, procedure](Arguments... arguments) {
        procedure(form, static_cast<Arguments>(arguments)...);
    };
}

} // namespace zev
