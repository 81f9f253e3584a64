// SPDX-License-Identifier: MIT
#include "desktop/GstStreamSession.h"

#include "desktop/AudioLog.h"
#include "music/StreamAddress.h"

#include <gio/gio.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string_view>
#include <utility>

namespace velto {

using namespace std::chrono_literals;
using Seconds = std::chrono::duration<double>;

namespace {

/// A stream that gives no sound for this long is given up. Short of the ten seconds after which
/// silence must be noticed, by what may still be in the buffers.
constexpr auto patience = 7s;
/// A stream that has sounded for this long starts again with the shortest delay.
constexpr auto steady = 10s;
/// What must have arrived before sound is let out, at the start and after a gap...
constexpr guint64 leastBuffered = GST_SECOND;
/// ...and what is kept at most, of sound ready to play.
constexpr guint64 mostBuffered = 4 * GST_SECOND;
constexpr int mostRedirections = 10;

/// Of the flags of playbin, which has no header: sound, and nothing else.
constexpr unsigned playAudio = 1U << 1;

struct ObjectDeleter {
    void operator()(GstElement* element) const { gst_object_unref(element); }
};
using Element = std::unique_ptr<GstElement, ObjectDeleter>;

/// Whether elements of this kind read from anywhere but the web.
bool isForbidden(GstElementFactory* factory)
{
    const std::string_view name = gst_plugin_feature_get_name(GST_PLUGIN_FEATURE(factory));
    return gst_element_factory_get_uri_type(factory) == GST_URI_SRC && name != "souphttpsrc";
}

bool initialise()
{
    GError* error = nullptr;
    if (!gst_init_check(nullptr, nullptr, &error)) {
        qCDebug(audioLog) << "no GStreamer:" << (error ? error->message : "");
        g_clear_error(&error);
        return false;
    }

    // No stream may lead to a file, not even by way of a playlist. The plug-in that can read files is
    // needed for other things; it must be loaded first, since loading it would bring all of it back.
    // All this is for this process only: the list on disk stays as it is.
    if (auto* plugin = gst_plugin_load_by_name("coreelements"))
        gst_object_unref(plugin);
    auto* registry = gst_registry_get();
    auto* factories = gst_registry_get_feature_list(registry, GST_TYPE_ELEMENT_FACTORY);
    for (auto* item = factories; item; item = item->next) {
        if (isForbidden(GST_ELEMENT_FACTORY(item->data)))
            gst_registry_remove_feature(registry, GST_PLUGIN_FEATURE(item->data));
    }
    gst_plugin_feature_list_free(factories);

    // As other TLS libraries have it: trust these authorities instead of the system's.
    if (const char* authorities = g_getenv("SSL_CERT_FILE")) {
        auto* database = g_tls_file_database_new(authorities, nullptr);
        if (database) {
            g_tls_backend_set_default_database(g_tls_backend_get_default(), G_TLS_DATABASE(database));
            g_object_unref(database);
        }
    }
    return true;
}

/// The first call may take long.
bool isInitialised()
{
    static const bool initialised = initialise();
    return initialised;
}

/// The location that a server's answer points to; empty when it is no redirection.
std::string redirectionIn(const GstStructure* answer)
{
    unsigned status = 0;
    GstStructure* fields = nullptr;
    std::string location;
    if (answer && gst_structure_get_uint(answer, "http-status-code", &status) && status >= 300 && status < 400
        && gst_structure_get(answer, "response-headers", GST_TYPE_STRUCTURE, &fields, nullptr)) {
        for (int i = 0; i < gst_structure_n_fields(fields); ++i) {
            const char* name = gst_structure_nth_field_name(fields, static_cast<unsigned>(i));
            const char* value = gst_structure_get_string(fields, name);
            if (value && g_ascii_strcasecmp(name, "Location") == 0)
                location = value;
        }
        gst_structure_free(fields);
    }
    return location;
}

/// Where a redirection leads, empty when it must not be followed: away from the web, or from a
/// protected to an unprotected connection.
std::string redirectionTarget(const std::string& from, const std::string& location)
{
    char* resolved = g_uri_resolve_relative(from.c_str(), location.c_str(), G_URI_FLAGS_ENCODED, nullptr);
    std::string target = resolved ? resolved : "";
    g_free(resolved);

    const auto isProtected = [](const std::string& url) { return g_ascii_strncasecmp(url.c_str(), "https:", 6) == 0; };
    if (!isStreamAddress(target) || (isProtected(from) && !isProtected(target)))
        return {};
    return target;
}

void onSourceSetup(GstElement*, GstElement* source, gpointer)
{
    // Redirections and retries are ours to decide on.
    g_object_set(source, "automatic-redirect", FALSE, "retries", 0, "ssl-strict", TRUE, "user-agent", "velto", nullptr);
}

void onUnderrun(GstElement* queue, gpointer)
{
    g_object_set(queue, "min-threshold-time", leastBuffered, nullptr);
}
void onRunning(GstElement* queue, gpointer)
{
    g_object_set(queue, "min-threshold-time", guint64{0}, nullptr);
}

Element makeElement(const char* kind)
{
    auto* element = gst_element_factory_make(kind, nullptr);
    return Element(element ? GST_ELEMENT(gst_object_ref_sink(element)) : nullptr);
}

/// The way of the sound to the sound server. Absent when GStreamer lacks an element for it.
///
/// The volume is applied here and not by the server, where it would be taken for the one that the
/// user has set for this program in the desktop's mixer. Nothing waits for a clock: sound that
/// comes late is still to be heard.
Element makeSink(const Element& volume)
{
    const auto queue = makeElement("queue");
    auto output = makeElement("pulsesink");
    if (output) {
        auto* properties = gst_structure_new("properties", "media.role", G_TYPE_STRING, "music", "media.name",
            G_TYPE_STRING, "velto", "application.name", G_TYPE_STRING, "velto", "application.id", G_TYPE_STRING,
            "org.velto.Velto", "application.icon_name", G_TYPE_STRING, "org.velto.Velto", nullptr);
        g_object_set(output.get(), "client-name", "velto", "stream-properties", properties, "sync", FALSE, nullptr);
        gst_structure_free(properties);
    } else {
        output = makeElement("autoaudiosink");
    }
    if (!queue || !volume || !output)
        return nullptr;

    g_object_set(queue.get(), "max-size-time", mostBuffered, "max-size-bytes", 0, "max-size-buffers", 0,
        "min-threshold-time", leastBuffered, nullptr);
    g_signal_connect(queue.get(), "underrun", G_CALLBACK(onUnderrun), nullptr);
    g_signal_connect(queue.get(), "running", G_CALLBACK(onRunning), nullptr);

    Element bin(GST_ELEMENT(gst_object_ref_sink(gst_bin_new(nullptr))));
    for (auto* element : {queue.get(), volume.get(), output.get()})
        gst_bin_add(GST_BIN(bin.get()), element);
    gst_element_link_many(queue.get(), volume.get(), output.get(), nullptr);
    auto* pad = gst_element_get_static_pad(queue.get(), "sink");
    gst_element_add_pad(bin.get(), gst_ghost_pad_new("sink", pad));
    gst_object_unref(pad);
    return bin;
}

} // namespace

GstStreamSession::GstStreamSession(std::string url, float volume) : m_url(std::move(url)), m_volume(volume) { }

void GstStreamSession::stop()
{
    const std::lock_guard lock(m_mutex);
    m_stopped = true;
    m_changed.notify_all();
}

void GstStreamSession::setVolume(float volume)
{
    const std::lock_guard lock(m_mutex);
    m_volume = volume;
    m_changed.notify_all();
}

void GstStreamSession::run()
{
    if (!isInitialised())
        return;

    std::minstd_rand random(std::random_device{}());
    std::uniform_real_distribution jitter(0.8, 1.25);
    Seconds delay = 1s;
    std::string url = m_url;
    int redirections = 0;
    while (!isStopped()) {
        connect(url);

        if (!m_connection.redirection.empty() && redirections < mostRedirections) {
            url = m_connection.redirection;
            ++redirections;
            continue;
        }
        url = m_url;
        redirections = 0;
        if (m_connection.firstSound && *m_connection.lastSound - *m_connection.firstSound >= steady)
            delay = 1s;
        if (!wait(std::chrono::duration_cast<Clock::duration>(std::clamp<Seconds>(delay * jitter(random), 1s, 30s))))
            return;
        delay = std::min<Seconds>(delay * 2, 30s);
    }
}

/// Opens the stream and returns when it has come to an end, has failed, or is to be stopped.
void GstStreamSession::connect(const std::string& url)
{
    {
        const std::lock_guard lock(m_mutex);
        m_connection = {};
        m_connection.url = url;
    }
    const auto pipeline = makeElement("playbin");
    const auto volume = makeElement("volume");
    const auto sink = makeSink(volume);
    if (!pipeline || !sink) {
        qCDebug(audioLog) << "GStreamer lacks playbin, queue, volume or a sink";
        return;
    }
    g_object_set(pipeline.get(), "uri", url.c_str(), "audio-sink", sink.get(), "flags", playAudio, nullptr);
    g_signal_connect(pipeline.get(), "source-setup", G_CALLBACK(onSourceSetup), nullptr);

    applyVolume(volume.get());
    auto* pad = gst_element_get_static_pad(volume.get(), "src");
    gst_pad_add_probe(pad, GST_PAD_PROBE_TYPE_BUFFER, onSound, this, nullptr);
    gst_object_unref(pad);
    auto* bus = gst_element_get_bus(pipeline.get());
    gst_bus_set_sync_handler(bus, onMessage, this, nullptr);
    gst_object_unref(bus);

    qCDebug(audioLog) << "opening" << url.c_str();
    if (gst_element_set_state(pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE)
        attend(volume.get());
    letItStart(volume.get());
    // A change of state that is still under way may cut the one to the end short.
    for (int i = 0; i < 10 && GST_STATE(pipeline.get()) != GST_STATE_NULL; ++i)
        gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    qCDebug(audioLog) << "closed" << url.c_str();
}

float GstStreamSession::applyVolume(GstElement* volume)
{
    std::unique_lock lock(m_mutex);
    const auto level = m_volume;
    lock.unlock();
    g_object_set(volume, "volume", double{level}, nullptr);
    return level;
}

/// Waits for as long as all goes well.
void GstStreamSession::attend(GstElement* volume)
{
    std::unique_lock lock(m_mutex);
    while (!m_stopped && !m_connection.failed) {
        const auto deadline = m_connection.lastSound.value_or(m_connection.opened) + patience;
        if (Clock::now() >= deadline) {
            qCDebug(audioLog) << "the stream has stalled";
            return;
        }
        lock.unlock();
        const auto level = applyVolume(volume);
        lock.lock();
        m_changed.wait_until(lock, deadline, [&] { return m_stopped || m_connection.failed || m_volume != level; });
    }
}

/// Gives a pipeline that is being put together a moment to be finished, in silence.
///
/// GStreamer 1.22 with libsoup 3.2 may crash when it is taken down in the moment in which the
/// answer of the server comes in or the decoder is chosen. What takes longer is only waiting.
void GstStreamSession::letItStart(GstElement* volume)
{
    g_object_set(volume, "volume", 0.0, nullptr);
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, 300ms, [this] { return m_connection.firstSound || m_connection.failed; });
}

/// Whether nobody stopped the session meanwhile.
bool GstStreamSession::wait(Clock::duration delay)
{
    qCDebug(audioLog) << "trying again in" << Seconds(delay).count() << "s";
    std::unique_lock lock(m_mutex);
    return !m_changed.wait_for(lock, delay, [this] { return m_stopped; });
}

bool GstStreamSession::isStopped()
{
    const std::lock_guard lock(m_mutex);
    return m_stopped;
}

GstBusSyncReply GstStreamSession::onMessage(GstBus*, GstMessage* message, gpointer session)
{
    auto& self = *static_cast<GstStreamSession*>(session);
    switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_ERROR: {
        GError* error = nullptr;
        char* debug = nullptr;
        gst_message_parse_error(message, &error, &debug);
        qCDebug(audioLog) << "error:" << error->message << debug;
        g_error_free(error);
        g_free(debug);
        self.noteFailure();
        break;
    }
    case GST_MESSAGE_EOS:
        qCDebug(audioLog) << "end of stream";
        self.noteFailure();
        break;
    case GST_MESSAGE_ELEMENT:
        if (auto location = redirectionIn(gst_message_get_structure(message)); !location.empty()) {
            const std::lock_guard lock(self.m_mutex);
            self.m_connection.redirection = redirectionTarget(self.m_connection.url, location);
        }
        break;
    default:
        break;
    }
    gst_message_unref(message);
    return GST_BUS_DROP;
}

void GstStreamSession::noteFailure()
{
    const std::lock_guard lock(m_mutex);
    m_connection.failed = true;
    m_changed.notify_all();
}

GstPadProbeReturn GstStreamSession::onSound(GstPad*, GstPadProbeInfo*, gpointer session)
{
    auto& self = *static_cast<GstStreamSession*>(session);
    const std::lock_guard lock(self.m_mutex);
    self.m_connection.lastSound = Clock::now();
    if (!self.m_connection.firstSound) {
        self.m_connection.firstSound = self.m_connection.lastSound;
        self.m_changed.notify_all();
    }
    return GST_PAD_PROBE_OK;
}

} // namespace velto
