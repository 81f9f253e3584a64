// SPDX-License-Identifier: MIT
#pragma once

#include <gst/gst.h>

#include <atomic>
#include <string>

namespace velto {

/// Plays one stream from the web through the desktop's sound server, in a process of its own.
///
/// Nothing of it is ever taken down: the process ends instead, when the stream ends or fails, and when there was no
/// sound for too long, for whatever reason.
class StreamPlayback {
public:
    /// Finds out which plug-ins there are, once and first: it may write files, and starts no thread.
    static void initialise();

    /// `volume` is linear, 0 to 1, and may change at any time; it must outlive this.
    StreamPlayback(std::string url, const std::atomic<float>& volume);

    /// Returns when all is under way; may hang like anything that has to do with a server.
    void start();

private:
    [[nodiscard]] GstElement* makeSink();

    static void onSourceSetup(GstElement* pipeline, GstElement* source, gpointer playback);
    static GstBusSyncReply onMessage(GstBus* bus, GstMessage* message, gpointer playback);
    static GstPadProbeReturn onSound(GstPad* pad, GstPadProbeInfo* info, gpointer playback);

    const std::string m_url;
    const std::atomic<float>& m_level;
    GstElement* m_volume = nullptr; ///< Applies the level.
};

} // namespace velto
