#include "toolkit/print/print_dialog.h"

#include <utility>

#include "toolkit/print/system_print_dialog.h"
#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {
namespace {

PrinterChoice& answerInPlace() {
    static PrinterChoice answer;
    return answer;
}

} // namespace

std::optional<Printer> setUpOnScreen(const Printer& present) {
    updateWindow();
    if (answerInPlace()) return answerInPlace()(present);
    auto chosen = askForPrinter(present);
    rethrowKept();
    return chosen;
}

void answerPrinterSetupWith(PrinterChoice answer) { answerInPlace() = std::move(answer); }

} // namespace toolkit
