// What the player does stays in the system's own queue, untouched. Qt takes it out and keeps it for
// later; but a key is read together with the Shift and Ctrl of the moment, and by then they are up.
#include "toolkit/window/qt_pending_events.h"

#include <array>
#include <optional>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>
#include <QtGui/QGuiApplication>

#include <windows.h>

namespace toolkit {
namespace {

struct MessageRange {
    UINT first;
    UINT last;
};

/// All messages but those of the mouse (two ranges: in the frame and in the window), keys, raw
/// input, touch and pen.
constexpr std::array ownMessages{
    MessageRange{0, WM_NCMOUSEMOVE - 1},
    MessageRange{WM_NCXBUTTONDBLCLK + 1, WM_INPUT_DEVICE_CHANGE - 1},
    MessageRange{WM_KEYLAST + 1, WM_GESTURE - 1},
    MessageRange{WM_GESTURENOTIFY + 1, WM_MOUSEFIRST - 1},
    MessageRange{WM_MOUSELAST + 1, WM_POINTERDEVICECHANGE - 1},
    MessageRange{WM_POINTERHWHEEL + 1, 0xFFFF},
};
constexpr DWORD ownKinds = QS_PAINT | QS_TIMER | QS_POSTMESSAGE | QS_SENDMESSAGE;

std::optional<MSG> nextOwnMessage() {
    MSG message{};
    for (const MessageRange& range : ownMessages)
        if (PeekMessageW(&message, nullptr, range.first, range.last, PM_REMOVE) != 0)
            return message;
    return std::nullopt;
}

/// Without end only where a handler makes new messages without end.
void runOwnMessages() {
    QCoreApplication::sendPostedEvents();
    while (const std::optional<MSG> message = nextOwnMessage()) {
        if (message->message == WM_QUIT) return PostQuitMessage(static_cast<int>(message->wParam));
        DispatchMessageW(&*message);
    }
    QCoreApplication::sendPostedEvents();
}

/// Tests run on a platform of Qt's that has a queue of its own.
bool hasSystemQueue() { return QGuiApplication::platformName() == QStringLiteral("windows"); }

} // namespace

void runPendingEvents() {
    if (hasSystemQueue()) return runOwnMessages();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void runEventsFor(int milliseconds) {
    QDeadlineTimer end(milliseconds, Qt::PreciseTimer);
    while (!end.hasExpired()) {
        runPendingEvents();
        const auto left = static_cast<DWORD>(qMax<qint64>(end.remainingTime(), 0));
        MsgWaitForMultipleObjectsEx(0, nullptr, left, ownKinds, 0);
    }
    runPendingEvents();
}

} // namespace toolkit
