// The file managers of the Linux desktops, which all answer to one name on the session's bus. The
// bus costs the start of the program nothing: Qt's own window library is linked with it, too.
#include "toolkit/window/qt_file_manager.h"

#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>

namespace toolkit {

void selectInFileManager(const QUrl& file, const std::function<void()>& otherwise) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return otherwise();
    const QString service = QStringLiteral("org.freedesktop.FileManager1");
    auto request =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/FileManager1"),
                                       service, QStringLiteral("ShowItems"));
    const QString startup; // no notification that one is on its way
    request << QStringList{file.toString(QUrl::FullyEncoded)} << startup;
    // Goes when it has its answer.
    auto* const answer =
        new QDBusPendingCallWatcher(bus.asyncCall(request), QCoreApplication::instance());
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, otherwise] {
        answer->deleteLater();
        if (answer->isError()) otherwise();
    });
}

} // namespace toolkit
