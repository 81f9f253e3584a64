// SPDX-License-Identifier: MIT
#include "app/Platform.h"
#include "app/VeltoApp.h"
#include "desktop/bus/SessionBus.h"
#include "desktop/session/Appearance.h"
#include "desktop/session/BackgroundOutput.h"
#include "desktop/session/BuildBundle.h"
#include "desktop/session/CommandLine.h"
#include "desktop/session/EndSignals.h"
#include "desktop/session/Language.h"
#include "desktop/session/QtApplication.h"
#include "desktop/session/QtCalendar.h"
#include "desktop/session/QtRunLoop.h"
#include "desktop/session/QtWorkspace.h"
#include "desktop/session/SingleInstance.h"
#include "desktop/session/StartEnvironment.h"
#include "desktop/sound/CanberraSoundLibrary.h"
#include "desktop/sound/ProcessStreamPlayerFactory.h"
#include "desktop/status_item/ClickGesture.h"
#include "desktop/status_item/DesktopStatusItem.h"
#include "desktop/status_item/XInputEventMonitor.h"
#include "desktop/storage/PlistKeyValueStore.h"
#include "desktop/windows/HelpAboutWindows.h"
#include "desktop/windows/QtPanelWindow.h"
#include "desktop/windows/QtScreens.h"
#include "desktop/windows/SheetWindow.h"
#include "desktop/x11/StaleMapFilter.h"
#include "menubar/StatusBarController.h"
#include "observation/NotificationCenter.h"
#include "panel/PanelContainerView.h"
#include "settings_form/SettingsSheet.h"

#include <QApplication>
#include <QLocale>
#include <QWindow>

#include <csignal>
#include <filesystem>
#include <iostream>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <fcntl.h>
#include <unistd.h>

namespace velto {

namespace {

/// Qt takes the class of all windows from the application's name when the first one is created.
void setWindowClass(const QString& windowClass)
{
    QApplication::setApplicationName(windowClass);
    QWindow().create();
}

int run(QApplication& application)
{
    SessionBus bus(QStringLiteral("velto"));
    SingleInstance instance(bus, [] { NotificationCenter::defaultCenter().post(statusBarShowTimer); });
    if (const auto status = instance.claim())
        return *status;

    const BackgroundOutput output(std::cout, STDOUT_FILENO);
    const Appearance appearance(bus);
    const x11::StaleMapFilter staleMaps;
    QtRunLoop runLoop;
    QtScreens screens(runLoop);
    QtApplication desktopApplication;
    QtWorkspace workspace;
    QtCalendar calendar;
    BuildBundle bundle;
    // Static, so that the last write is waited for also where a library calls exit(), as when the X server goes.
    static PlistKeyValueStore defaults(PlistKeyValueStore::defaultPath());
    const std::filesystem::path folder = QCoreApplication::applicationDirPath().toStdString();
    CanberraSoundLibrary sounds(CanberraSoundLibrary::folderOf(folder));
    ProcessStreamPlayerFactory streamPlayers(ProcessStreamPlayerFactory::programOf(folder), runLoop);
    ClickGesture clickGesture(runLoop);
    XInputEventMonitor eventMonitor(clickGesture);

    const auto hidePanel = [&] { eventMonitor.dismiss(); };
    const auto makeSettingsSheet
        = [&](AppSettings& settings, PomodoroTimer& timer, QWidget& presenter, std::function<void()> dismiss) {
              return std::make_unique<SheetWindow>(
                  std::make_unique<SettingsSheet>(settings, timer, runLoop, std::move(dismiss)), presenter, screens,
                  hidePanel);
          };

    const EndSignals endSignals([&] { desktopApplication.terminate(); });

    Platform platform{
        .runLoop = runLoop,
        .defaults = defaults,
        .sounds = sounds,
        .streamPlayers = streamPlayers,
        .screens = screens,
        .eventMonitor = eventMonitor,
        .application = desktopApplication,
        .makeStatusItem =
            [&] {
                return std::make_unique<DesktopStatusItem>(
                    clickGesture,
                    [&](ClickEvent click, const std::function<void()>& action) {
                        desktopApplication.dispatch(click, action);
                    },
                    bus);
            },
        .makePanel =
            [&](PomodoroTimer& timer, AppSettings& settings, Size size) {
                return std::make_unique<QtPanelWindow>(
                    std::make_unique<PanelContainerView>(timer, settings, size, runLoop, bundle, makeSettingsSheet),
                    QtPanelWindow::Handlers{.dismiss = hidePanel,
                        .openMenu = [] { NotificationCenter::defaultCenter().post(statusBarOpenMenu); }});
            },
        .makeHelpWindow = [&] { return makeHelpWindow(screens); },
        .makeAboutWindow = [&] { return makeAboutWindow(screens, bundle, calendar, workspace, runLoop); },
    };
    VeltoApp app(platform);
    app.appDelegate().applicationDidFinishLaunching();
    return application.exec();
}

/// What is opened later would take the place of a standard stream that is closed, and get what is meant for that.
void fillStandardStreams()
{
    int file = 0;
    do
        file = open("/dev/null", O_RDWR);
    while (file >= 0 && file <= STDERR_FILENO);
    close(file);
}

} // namespace
} // namespace velto

int main(int argc, char* argv[])
{
    velto::fillStandardStreams();
    // Standard output may have no reader any more.
    std::signal(SIGPIPE, SIG_IGN);
#ifdef __GLIBC__
    // What a window was drawn into goes back to the system with the window, instead of staying for the next one.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
    if (const auto status = velto::answerBeforeStart(argc, argv))
        return *status;

    auto application = [&] {
        const velto::StartEnvironment environment;
        return QApplication(argc, argv);
    }();
    if (const auto status = velto::refuseUnknown(QApplication::arguments()))
        return *status;
    velto::speak(QLocale::system().uiLanguages());
    velto::setWindowClass(QStringLiteral("org.velto.Velto"));
    QApplication::setApplicationName(QStringLiteral("velto"));
    QApplication::setApplicationDisplayName(QStringLiteral("velto"));
    QApplication::setDesktopFileName(QStringLiteral("org.velto.Velto"));
    QApplication::setQuitOnLastWindowClosed(false);
    return velto::run(application);
}
