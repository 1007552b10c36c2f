#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include "toolkit/qt_pending_events.h"

namespace toolkit {

void runPendingEvents() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

void runEventsFor(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace toolkit
