// SPDX-License-Identifier: MIT
#include "stream/StreamPlayback.h"

#include "stream/RequestRules.h"
#include "stream/Sandbox.h"

#include <gio/gio.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <utility>

namespace velto {

namespace {

/// Seconds for the first of all calls, which may have to look at every plug-in there is.
constexpr unsigned patienceAtFirst = 60;
/// A connection that gives no sound for so many seconds is given up. Short of the ten seconds after which silence
/// must be noticed, by what may still be in the buffers.
constexpr unsigned patience = 7;
/// What must have arrived before sound is let out, at the start and after a gap...
constexpr guint64 leastBuffered = GST_SECOND;
/// ...and what is kept at most, of sound ready to play.
constexpr guint64 mostBuffered = 4 * GST_SECOND;

/// Of the flags of playbin, which has no header: sound, and nothing else.
constexpr unsigned playAudio = 1U << 1;

[[noreturn]] void giveUp(const std::string& reason)
{
    std::cerr << "velto.audio: " << reason << std::endl;
    _exit(EXIT_FAILURE);
}

/// Ends the process, whatever hangs, unless this is called again within so many seconds.
void expectSound(unsigned seconds)
{
    alarm(seconds);
}

void onSilence(int /*signal*/)
{
    constexpr std::string_view reason = "velto.audio: the stream has stalled\n";
    [[maybe_unused]] const auto written = write(STDERR_FILENO, reason.data(), reason.size());
    _exit(EXIT_FAILURE);
}

/// Whether elements of this kind read from anywhere but the web.
bool isForbidden(GstElementFactory* factory)
{
    const std::string_view name = gst_plugin_feature_get_name(GST_PLUGIN_FEATURE(factory));
    return gst_element_factory_get_uri_type(factory) == GST_URI_SRC && name != "souphttpsrc";
}

} // namespace

void StreamPlayback::initialise()
{
    std::signal(SIGALRM, onSilence);
    expectSound(patienceAtFirst);
    // Nothing of what is asked of the system leads to other programs of the session.
    g_setenv("GIO_USE_VFS", "local", true);
    g_setenv("GSETTINGS_BACKEND", "memory", true);

    GError* error = nullptr;
    if (!gst_init_check(nullptr, nullptr, &error))
        giveUp(error ? error->message : "no GStreamer");

    // No stream may lead to a file, not even by way of a playlist. The plug-in that can read files is needed for
    // other things; it must be loaded first, since loading it would bring all of it back. All this is for this
    // process only: the list on disk stays as it is.
    gst_plugin_load_by_name("coreelements");
    auto* registry = gst_registry_get();
    auto* factories = gst_registry_get_feature_list(registry, GST_TYPE_ELEMENT_FACTORY);
    for (auto* item = factories; item; item = item->next) {
        if (isForbidden(GST_ELEMENT_FACTORY(item->data)))
            gst_registry_remove_feature(registry, GST_PLUGIN_FEATURE(item->data));
    }
    gst_plugin_feature_list_free(factories);
}

namespace {

void onUnderrun(GstElement* queue, gpointer)
{
    g_object_set(queue, "min-threshold-time", leastBuffered, nullptr);
}
void onRunning(GstElement* queue, gpointer)
{
    g_object_set(queue, "min-threshold-time", guint64{0}, nullptr);
}

/// As other TLS libraries have it: if a file of authorities is named, these instead of the system's.
void trustAuthorities()
{
    if (const char* authorities = g_getenv("SSL_CERT_FILE")) {
        if (auto* database = g_tls_file_database_new(authorities, nullptr))
            g_tls_backend_set_default_database(g_tls_backend_get_default(), G_TLS_DATABASE(database));
    }
}

GstElement* makeElement(const char* kind)
{
    auto* element = gst_element_factory_make(kind, nullptr);
    if (!element)
        giveUp(std::string("GStreamer lacks ") + kind);
    return element;
}

GstElement* makeOutput()
{
    // Waits for no clock: sound that comes late is still to be heard.
    auto* output = makeElement("pulsesink");
    auto* properties = gst_structure_new("properties", "media.role", G_TYPE_STRING, "music", "media.name",
        G_TYPE_STRING, "velto", "application.name", G_TYPE_STRING, "velto", "application.id", G_TYPE_STRING,
        "org.velto.Velto", "application.icon_name", G_TYPE_STRING, "org.velto.Velto", nullptr);
    g_object_set(output, "client-name", "velto", "stream-properties", properties, "sync", FALSE, nullptr);
    gst_structure_free(properties);
    // Connects to the sound server.
    if (gst_element_set_state(output, GST_STATE_READY) == GST_STATE_CHANGE_FAILURE)
        giveUp("no sound server");
    return output;
}

} // namespace

StreamPlayback::StreamPlayback(std::string url, const std::atomic<float>& volume) :
    m_url(std::move(url)),
    m_level(volume)
{
}

void StreamPlayback::start()
{
    trustAuthorities();
    holdRequestsToTheFirst(giveUp);

    expectSound(patience);
    auto* sink = makeSink();
    leaveLocalSockets();
    auto* pipeline = makeElement("playbin");
    g_object_set(pipeline, "uri", m_url.c_str(), "audio-sink", sink, "flags", playAudio, nullptr);
    g_signal_connect(pipeline, "source-setup", G_CALLBACK(onSourceSetup), nullptr);
    gst_bus_set_sync_handler(gst_element_get_bus(pipeline), onMessage, nullptr, nullptr);
    if (gst_element_set_state(pipeline, GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE)
        giveUp("the stream can't be opened");
}

/// The way of the sound to the sound server.
///
/// The volume is applied here and not by the server, where it would be taken for the one that the user has set for
/// this program in the desktop's mixer.
GstElement* StreamPlayback::makeSink()
{
    auto* queue = makeElement("queue");
    g_object_set(queue, "max-size-time", mostBuffered, "max-size-bytes", 0, "max-size-buffers", 0, "min-threshold-time",
        leastBuffered, nullptr);
    g_signal_connect(queue, "underrun", G_CALLBACK(onUnderrun), nullptr);
    g_signal_connect(queue, "running", G_CALLBACK(onRunning), nullptr);

    m_volume = makeElement("volume");
    gst_pad_add_probe(gst_element_get_static_pad(m_volume, "sink"), GST_PAD_PROBE_TYPE_BUFFER, onSound, this, nullptr);

    auto* output = makeOutput();
    auto* sink = gst_bin_new(nullptr);
    gst_bin_add_many(GST_BIN(sink), queue, m_volume, output, nullptr);
    gst_element_link_many(queue, m_volume, output, nullptr);
    gst_element_add_pad(sink, gst_ghost_pad_new("sink", gst_element_get_static_pad(queue, "sink")));
    return sink;
}

void StreamPlayback::onSourceSetup(GstElement*, GstElement* source, gpointer)
{
    // Retries are velto's to decide on.
    g_object_set(source, "retries", 0, "ssl-strict", TRUE, "user-agent", "velto", nullptr);
}

GstBusSyncReply StreamPlayback::onMessage(GstBus*, GstMessage* message, gpointer)
{
    switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_ERROR: {
        GError* error = nullptr;
        char* debug = nullptr;
        gst_message_parse_error(message, &error, &debug);
        giveUp(std::string(error->message) + " " + (debug ? debug : ""));
    }
    case GST_MESSAGE_EOS:
        giveUp("end of stream");
    default:
        break;
    }
    gst_message_unref(message);
    return GST_BUS_DROP;
}

GstPadProbeReturn StreamPlayback::onSound(GstPad*, GstPadProbeInfo*, gpointer playback)
{
    const auto& self = *static_cast<StreamPlayback*>(playback);
    expectSound(patience);
    g_object_set(self.m_volume, "volume", double{self.m_level}, nullptr);
    return GST_PAD_PROBE_OK;
}

} // namespace velto
