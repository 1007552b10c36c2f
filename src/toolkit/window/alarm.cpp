#include "toolkit/window/alarm.h"

#include <utility>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {

struct Alarm::Timer {
    Timer(int milliseconds, std::function<void()> rings)
        : timer(new QTimer(QCoreApplication::instance())) {
        timer->setObjectName(QStringLiteral("alarm"));
        timer->setSingleShot(true);
        QObject::connect(timer, &QTimer::timeout, timer, std::move(rings));
        timer->start(milliseconds);
    }
    /// Later: it may be this very timer that rings.
    ~Timer() {
        if (timer.isNull()) return;
        timer->setObjectName({});
        timer->stop();
        timer->disconnect();
        timer->deleteLater();
    }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    QPointer<QTimer> timer; ///< belongs to the application, which may end first
};

Alarm::Alarm() = default;
Alarm::~Alarm() = default;

void Alarm::set(int milliseconds, std::function<void()> rings) {
    if (isSet() || QCoreApplication::instance() == nullptr) return;
    timer_ = std::make_unique<Timer>(milliseconds, [this, rings = std::move(rings)] {
        // What rings may set it anew.
        cancel();
        if (currentWindow() != nullptr) currentWindow()->dispatcher().run(rings);
    });
}

void Alarm::cancel() { timer_.reset(); }

} // namespace toolkit
