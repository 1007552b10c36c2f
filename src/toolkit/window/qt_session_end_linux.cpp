#include "toolkit/window/qt_session_end.h"

#include <array>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include <QtCore/QSocketNotifier>

#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/qt_program.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {
namespace {

constexpr std::array endings{SIGHUP, SIGINT, SIGTERM};

/// Almost nothing may be called in a signal's handler; writing to a pipe may.
std::array<int, 2>& ends() {
    static std::array<int, 2> readAndWrite{-1, -1};
    return readAndWrite;
}

void tellByPipe(int /*signal*/) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(ends()[1], &byte, 1);
}

void takeOver(int signal) {
    struct sigaction action {};
    action.sa_handler = tellByPipe;
    action.sa_flags = SA_RESTART;
    // Whoever started the program may have set it to be ignored.
    struct sigaction before {};
    sigaction(signal, nullptr, &before);
    if (before.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
}

void askForm(int readEnd) {
    std::array<char, 64> bytes{};
    if (read(readEnd, bytes.data(), bytes.size()) < 1 || currentWindow() == nullptr) return;
    // Whoever sent the signal may not wait for an answer.
    prepareForEnd();
    currentWindow()->dispatcher().askToEnd();
}

} // namespace

struct SessionEnd::Implementation {
    explicit Implementation(int readEnd) : notifier(readEnd, QSocketNotifier::Read) {
        QObject::connect(&notifier, &QSocketNotifier::activated, [readEnd] { askForm(readEnd); });
    }
    QSocketNotifier notifier;
};

SessionEnd::SessionEnd() {
    if (pipe2(ends().data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    implementation_ = std::make_unique<Implementation>(ends()[0]);
    for (const int signal : endings) takeOver(signal);
}

SessionEnd::~SessionEnd() {
    if (!implementation_) return;
    implementation_.reset();
    // A handler that still comes writes to no file at all.
    for (int& end : ends()) close(std::exchange(end, -1));
}

} // namespace toolkit
