#include "toolkit/window/qt_session_end.h"

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QCoreApplication>

#include <windows.h>

#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/qt_program.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {

/// The system asks each window, and waits for the answer.
struct SessionEnd::Implementation : QAbstractNativeEventFilter {
    bool nativeEventFilter(const QByteArray& /*kind*/, void* event, qintptr* result) override {
        const auto& message = *static_cast<const MSG*>(event);
        if (message.message != WM_QUERYENDSESSION || currentWindow() == nullptr) return false;
        const auto own = reinterpret_cast<HWND>(currentWindow()->form().winId());
        if (message.hwnd != own) return false;
        // A shut-down needn't wait for an answer.
        prepareForEnd();
        *result = currentWindow()->dispatcher().mayEnd() ? TRUE : FALSE;
        return true;
    }
};

SessionEnd::SessionEnd() : implementation_(std::make_unique<Implementation>()) {
    QCoreApplication::instance()->installNativeEventFilter(implementation_.get());
}

SessionEnd::~SessionEnd() = default;

} // namespace toolkit
