// SPDX-License-Identifier: MIT
#pragma once

#include <gst/gst.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>

namespace velto {

/// One request to play a stream: keeps it sounding, over as many connections as it takes, until
/// it is stopped.
///
/// `run()` does all the work and all the waiting, on a thread of its own, and returns once
/// stopped. `stop()` and `setVolume()` may be called from any other thread and never wait.
class GstStreamSession {
public:
    /// `volume` is linear, 0 to 1.
    GstStreamSession(std::string url, float volume);

    void run();
    void stop();
    void setVolume(float volume);

private:
    using Clock = std::chrono::steady_clock;

    /// What is known of the connection under way.
    struct Connection {
        std::string url;
        bool failed = false;
        std::string redirection; ///< Where the server wants us to go instead; empty if nowhere.
        Clock::time_point opened = Clock::now();
        std::optional<Clock::time_point> firstSound;
        std::optional<Clock::time_point> lastSound;
    };

    void connect(const std::string& url);
    float applyVolume(GstElement* volume);
    void attend(GstElement* volume);
    void letItStart(GstElement* volume);
    void noteFailure();
    bool wait(Clock::duration delay);
    bool isStopped();

    static GstBusSyncReply onMessage(GstBus* bus, GstMessage* message, gpointer session);
    static GstPadProbeReturn onSound(GstPad* pad, GstPadProbeInfo* info, gpointer session);

    const std::string m_url;

    std::mutex m_mutex; ///< Guards all that follows.
    std::condition_variable m_changed;
    bool m_stopped = false;
    float m_volume;
    Connection m_connection;
};

} // namespace velto
