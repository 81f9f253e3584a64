// SPDX-License-Identifier: MIT
#include "desktop/sound/ProcessStreamPlayer.h"

#include "desktop/sound/AudioLog.h"
#include "desktop/sound/StreamUrl.h"
#include "platform/RunLoop.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <random>
#include <utility>

namespace velto {

using std::chrono::steady_clock;

void ProcessStreamPlayer::Killer::operator()(QProcess* process) const
{
    process->disconnect();
    if (process->state() == QProcess::NotRunning) {
        process->deleteLater();
        return;
    }
    // Should this program end first, the system reaps it.
    QObject::connect(process, &QProcess::stateChanged, process, [process](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            process->deleteLater();
    });
    process->kill();
}

ProcessStreamPlayer::ProcessStreamPlayer(QUrl url, std::filesystem::path program, RunLoop& runLoop) :
    m_url(std::move(url)),
    m_program(std::move(program)),
    m_runLoop(runLoop),
    m_retryDelay(std::random_device{}())
{
}

ProcessStreamPlayer::~ProcessStreamPlayer() = default;

void ProcessStreamPlayer::setVolume(float volume)
{
    m_volume = volume > 0 ? std::min(volume, 1.0F) : 0.0F; // NaN is silent, too.
    if (m_process)
        m_process->write(QByteArray::number(m_volume) + '\n');
}

void ProcessStreamPlayer::play()
{
    pause();
    if (!isOnTheWeb(m_url)) {
        qCDebug(audioLog) << "not opened, since it is not on the web:" << m_url;
        return;
    }
    m_retryDelay.reset();
    open();
}

void ProcessStreamPlayer::pause()
{
    m_retry = {};
    m_process.reset();
}

void ProcessStreamPlayer::open()
{
    m_opened = steady_clock::now();
    const auto program = QString::fromStdString(m_program);
    // QProcess would leak a pipe with each attempt.
    if (!QFileInfo(program).isExecutable()) {
        qCDebug(audioLog) << "no" << program;
        onEnd();
        return;
    }
    m_process.reset(new QProcess);
    m_process->setProgram(program);
    m_process->setStandardOutputFile(QProcess::nullDevice());
    if (audioLog().isDebugEnabled())
        m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    else
        m_process->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(m_process.get(), &QProcess::stateChanged, [this](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            onEnd();
    });
    // It may end at once.
    m_process->start();
    if (m_process)
        m_process->write(m_url.toEncoded() + '\n' + QByteArray::number(m_volume) + '\n');
}

void ProcessStreamPlayer::onEnd()
{
    m_process.reset();
    const auto attempt = std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - m_opened);
    const auto delay = m_retryDelay.after(attempt);
    qCDebug(audioLog) << "trying again in" << delay.count() << "ms";
    m_retry = m_runLoop.after(delay, [this] { open(); });
}

} // namespace velto
