// Times a program from its start until a pixel of the screen shows the card's paper, and reads its
// peak memory then: first_paint X Y COMMAND [ARGUMENT...] prints "milliseconds kibibytes".
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QThread>
#include <QtGui/QGuiApplication>
#include <QtGui/QPixmap>
#include <QtGui/QScreen>

#include <cstdio>

namespace {

constexpr qint64 longestWait = 20000;

bool showsPaper(QScreen& screen, int x, int y) {
    const QImage pixel = screen.grabWindow(0, x, y, 1, 1).toImage();
    return !pixel.isNull() && pixel.pixelColor(0, 0) == QColor(Qt::white);
}

qint64 peakKibibytes(qint64 process) {
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:")) return line.mid(6).trimmed().split(' ').first().toLongLong();
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const QGuiApplication application(argumentCount, arguments);
    QStringList words = QGuiApplication::arguments().mid(1);
    if (words.size() < 3) return 2;
    const int x = words.takeFirst().toInt();
    const int y = words.takeFirst().toInt();
    const QString program = words.takeFirst();
    QScreen& screen = *QGuiApplication::primaryScreen();
    QProcess process;
    QElapsedTimer timer;
    timer.start();
    process.start(program, words);
    while (!showsPaper(screen, x, y) && timer.elapsed() < longestWait) QThread::usleep(500);
    const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    std::printf("%.1f %lld\n", milliseconds, peakKibibytes(process.processId()));
    process.kill();
    process.waitForFinished();
    return milliseconds < static_cast<double>(longestWait) ? 0 : 1;
}
