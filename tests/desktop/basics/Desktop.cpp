// SPDX-License-Identifier: MIT
#include "Desktop.h"

#include "OtherWindow.h"
#include "desktop/X11Desktop.h"

#include <QProcess>
#include <QTest>

#include <csignal>
#include <stdexcept>

#include <sys/prctl.h>

namespace velto {

namespace {

constexpr int patience = 30000; // ms
constexpr int moment = 400;     // ms

Desktop* theDesktop = nullptr;

QString firstLine(QProcess& process)
{
    while (!process.canReadLine())
        if (!process.waitForReadyRead(patience))
            throw std::runtime_error("no answer from " + process.program().toStdString());
    return QString::fromUtf8(process.readLine().trimmed());
}

} // namespace

Desktop::Desktop()
{
    theDesktop = this;
    const QString home = QString::fromStdString(m_home.path().string());
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR",
             "XDG_CURRENT_DESKTOP", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"})
        qunsetenv(name);
    qputenv("HOME", home.toUtf8());
    qputenv("NO_AT_BRIDGE", "1");

    auto* bus = start(QStringLiteral("dbus-daemon"),
        {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
            QStringLiteral("--print-address=1")});
    qputenv("DBUS_SESSION_BUS_ADDRESS", firstLine(*bus).toUtf8());
    auto* server = start(QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
            QStringLiteral("2400x1200x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
            QStringLiteral("-noreset")});
    qputenv("DISPLAY", ":" + firstLine(*server).toUtf8());
}

Desktop::~Desktop()
{
    m_probes.clear();
    for (auto process = m_processes.rbegin(); process != m_processes.rend(); ++process) {
        (*process)->kill();
        (*process)->waitForFinished();
    }
    theDesktop = nullptr;
}

Desktop& Desktop::current()
{
    return *theDesktop;
}

QProcess* Desktop::start(const QString& program, const QStringList& arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProgram(program);
    process->setArguments(arguments);
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process->start();
    if (!process->waitForStarted(patience))
        return nullptr;
    return m_processes.emplace_back(std::move(process)).get();
}

bool Desktop::run(const QString& program, const QStringList& arguments)
{
    return QProcess::execute(program, arguments) == 0;
}

void Desktop::startWindowManager(const QString& program)
{
    QStringList arguments;
    if (program == QStringLiteral("xfwm4"))
        arguments << QStringLiteral("--compositor=off");
    start(program, arguments);
    // It announces itself before it looks after windows: a first one may be overlooked. The server would
    // give the name of one that is gone to the next, which confuses window managers: they are kept.
    const auto looksAfterWindows = [this] {
        const auto& probe = *m_probes.emplace_back(std::make_unique<OtherWindow>(QRect{0, 0, 50, 50}));
        m_probes.back()->show();
        const bool isManaged = QTest::qWaitFor([&] { return x11::outermost(probe.id()) != probe.id(); }, moment);
        m_probes.back()->hide();
        return isManaged;
    };
    if (!eventually(looksAfterWindows) || !eventually([] { return x11::hasWindowManager(); }))
        throw std::runtime_error("no window manager");
}

bool Desktop::movePointer(int x, int y)
{
    return run(QStringLiteral("xdotool"), {QStringLiteral("mousemove"), QString::number(x), QString::number(y)});
}

bool Desktop::click(int x, int y, int button)
{
    return run(QStringLiteral("xdotool"),
        {QStringLiteral("mousemove"), QString::number(x), QString::number(y), QStringLiteral("click"),
            QString::number(button)});
}

bool eventually(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, patience);
}

bool stays(const std::function<bool()>& condition)
{
    return !QTest::qWaitFor([&] { return !condition(); }, moment);
}

} // namespace velto
