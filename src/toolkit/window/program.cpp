#include "toolkit/window/program.h"

#include <cstdlib>

#include <QtWidgets/QApplication>

#include "toolkit/base/program_overrides.h"
#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/qt_pending_events.h"
#include "toolkit/window/qt_program.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {

void doEvents() {
    updateWindow();
    if (qApp != nullptr) runPendingEvents();
    rethrowKept();
}

void wait(int milliseconds) {
    if (programOverrides().shortWaits || qApp == nullptr) {
        doEvents();
        if (programOverrides().duringWait) programOverrides().duringWait(milliseconds);
        return;
    }
    updateWindow();
    runEventsFor(milliseconds);
    rethrowKept();
}

void waitForPlayer(const std::function<bool()>& isOver) {
    updateWindow();
    if (currentWindow() != nullptr) currentWindow()->dispatcher().letPlayerAct(isOver);
}

void beep() {
    if (programOverrides().beep) return programOverrides().beep();
    QApplication::beep();
}

void prepareForEnd() {
    static bool isPreparing = false;
    if (currentWindow() == nullptr || isPreparing) return;
    const auto& ending = currentWindow()->parts().form->Ending;
    if (!ending) return;
    isPreparing = true;
    try {
        ending();
    } catch (const std::exception&) {
        // The end is not to be held up.
    }
    isPreparing = false;
}

void leaveProgram() {
    prepareForEnd();
    if (programOverrides().throwAtEnd) throw ProgramEnded{EXIT_SUCCESS};
    QCoreApplication::exit();
}

void endProgram(int exitCode) {
    prepareForEnd();
    if (programOverrides().throwAtEnd) throw ProgramEnded{exitCode};
    std::_Exit(exitCode);
}

} // namespace toolkit
