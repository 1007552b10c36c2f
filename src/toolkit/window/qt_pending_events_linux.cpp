#include "toolkit/window/qt_pending_events.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

namespace toolkit {

void runPendingEvents() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

void runEventsFor(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace toolkit
