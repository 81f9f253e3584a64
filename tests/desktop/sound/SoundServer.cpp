// SPDX-License-Identifier: MIT
#include "SoundServer.h"

#include <QFile>
#include <gtest/gtest.h>

#include <csignal>

namespace velto {

SoundServer::SoundServer()
{
    const auto folder = m_folder.path().toUtf8();
    qputenv("XDG_RUNTIME_DIR", folder);
    qputenv("HOME", folder);
    qputenv("XDG_CONFIG_HOME", folder + "/config");
    qputenv("PULSE_SERVER", "unix:" + folder + "/native");
}

void SoundServer::start()
{
    const auto socket = m_folder.filePath("native");
    QFile::remove(socket);
    m_process = startProcess("pulseaudio",
        {"-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--realtime=no", "--high-priority=no",
            "--disable-shm=yes", "--log-level=error", "--log-target=stderr", "-L",
            "module-null-sink sink_name=void rate=48000", "-L",
            "module-native-protocol-unix auth-anonymous=1 socket=" + socket});
    ASSERT_TRUE(eventually([&] { return list("sinks").contains("void"); })) << "no sound server";
}

void SoundServer::kill()
{
    if (!m_process)
        return;
    m_process->kill();
    EXPECT_TRUE(eventually([&] { return m_process->state() == QProcess::NotRunning; }));
    m_process.reset();
}

void SoundServer::freeze()
{
    ::kill(static_cast<pid_t>(m_process->processId()), SIGSTOP);
}
void SoundServer::thaw()
{
    ::kill(static_cast<pid_t>(m_process->processId()), SIGCONT);
}

QString SoundServer::list(const QString& what) const
{
    const auto pactl = startProcess("sh", {"-c", "exec pactl list " + what + " 2>/dev/null"});
    EXPECT_TRUE(eventually([&] { return pactl->state() == QProcess::NotRunning; }));
    return QString::fromUtf8(pactl->readAllStandardOutput());
}

} // namespace velto
