// SPDX-License-Identifier: MIT
#include "SoundServer.h"

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
    m_process = startProcess("/usr/bin/python3", {"-B", VELTO_SOUND_SERVER, m_folder.filePath("native")});
    ASSERT_TRUE(eventually([&] { return ask("info").contains("Default Sink: void"); })) << "no sound server";
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
    return ask("list " + what);
}

QString SoundServer::ask(const QString& command) const
{
    const auto pactl = startProcess("sh", {"-c", "LC_ALL=C exec pactl " + command + " 2>/dev/null"});
    EXPECT_TRUE(eventually([&] { return pactl->state() == QProcess::NotRunning; }));
    return QString::fromUtf8(pactl->readAllStandardOutput());
}

} // namespace velto
