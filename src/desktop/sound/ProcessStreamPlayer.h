// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/sound/RetryDelay.h"
#include "observation/Subscription.h"
#include "platform/StreamPlayer.h"

#include <QUrl>

#include <chrono>
#include <filesystem>
#include <memory>

class QProcess;

namespace velto {

class RunLoop;

/// Plays a web stream in a separate program, so that this one never touches data from the web.
///
/// A run of that program is one attempt: it ends when the stream does, and another one follows for as long as this
/// plays. To stop it is to kill it, which takes no time and leaves nothing behind.
class ProcessStreamPlayer final : public StreamPlayer {
public:
    /// `program` plays one stream, see stream/main.cpp. `runLoop` must outlive this.
    ProcessStreamPlayer(QUrl url, std::filesystem::path program, RunLoop& runLoop);
    ~ProcessStreamPlayer() override;

    void setVolume(float volume) override;
    /// A live stream is never resumed: each call opens it again.
    void play() override;
    void pause() override;

private:
    /// Kills the process without waiting for its end.
    struct Killer {
        void operator()(QProcess* process) const;
    };

    void open();
    void onEnd();

    const QUrl m_url;
    const std::filesystem::path m_program;
    RunLoop& m_runLoop;
    float m_volume = 1;
    std::unique_ptr<QProcess, Killer> m_process;    ///< Null while no attempt is under way.
    std::chrono::steady_clock::time_point m_opened; ///< Of that attempt.
    RetryDelay m_retryDelay;
    Subscription m_retry; ///< Between two attempts.
};

} // namespace velto
