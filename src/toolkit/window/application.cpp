#include "toolkit/window/application.h"

#include <cstdlib>

#include <QtWidgets/QApplication>

#include "toolkit/window/card/qt_accessible_card.h"
#include "toolkit/window/control/qt_accessible_list.h"
#include "toolkit/window/control/qt_note.h"
#include "toolkit/window/control/qt_overlay.h"
#include "toolkit/window/menu/qt_accessible_row.h"
#include "toolkit/window/panel/qt_accessible_panel.h"
#include "toolkit/window/qt_form_widget.h"
#include "toolkit/window/qt_program.h"
#include "toolkit/window/qt_program_icon.h"
#include "toolkit/window/qt_session_end.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {

class Application::Implementation {
  public:
    Implementation(int& argumentCount, char** arguments) : application(argumentCount, arguments) {}

    QApplication application;
};

namespace {

/// Windows' own font engines round advances to pixels and don't take the project's picture fonts
/// for what they are; this one paints and measures as on every other system.
void choosePlatform() {
#ifdef _WIN32
    constexpr const char* variable = "QT_QPA_PLATFORM";
    if (qEnvironmentVariableIsEmpty(variable)) qputenv(variable, "windows:fontengine=freetype");
#endif
}

/// Where somebody listens already, a widget is asked about while it is being made.
void answerScreenReaders() {
    answerAboutCards();
    answerAboutForms();
    answerAboutLists();
    answerAboutNotes();
    answerAboutOverlays();
    answerAboutPanels();
    answerAboutRows();
}

} // namespace

Application::Application(int& argumentCount, char** arguments) {
    choosePlatform();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QCoreApplication::setAttribute(Qt::AA_DontShowIconsInMenus);
    QCoreApplication::setApplicationName(QStringLiteral("zevlin"));
    // By this name a desktop finds the installed entry, and so the icon in its task bar.
    QGuiApplication::setDesktopFileName(QStringLiteral("zevlin"));
    implementation_ = std::make_unique<Implementation>(argumentCount, arguments);
    QGuiApplication::setWindowIcon(programIcon());
    // Boxes come and go before the main window is there.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    answerScreenReaders();
}

Application::~Application() = default;

int Application::run() {
    updateWindow();
    const SessionEnd sessionEnd;
    // Without its screen the platform ends the process from below the event loop.
    std::atexit(prepareForEnd);
    return QApplication::exec();
}

/// Not the platform's quit, which asks each window whether it may be closed: that has been asked.
void Application::quit() { QCoreApplication::exit(); }

std::string Application::commandLine() const {
    return QCoreApplication::arguments().mid(1).join(u' ').toStdString();
}

} // namespace toolkit
