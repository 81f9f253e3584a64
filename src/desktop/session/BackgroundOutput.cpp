// SPDX-License-Identifier: MIT
#include "desktop/session/BackgroundOutput.h"

#include <cerrno>
#include <condition_variable>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace velto {

class BackgroundOutput::Writer {
public:
    explicit Writer(int fileDescriptor) : m_fileDescriptor(fileDescriptor) { }

    void add(const std::string& text)
    {
        const std::lock_guard lock(m_mutex);
        m_pending += text;
        m_changed.notify_all();
    }

    /// What was added before is still written.
    void end()
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
        m_changed.notify_all();
    }

    void run()
    {
        for (;;) {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [this] { return m_ended || !m_pending.empty(); });
            if (m_pending.empty())
                return;
            const auto text = std::exchange(m_pending, {});
            lock.unlock();
            writeAll(text);
        }
    }

private:
    void writeAll(std::string_view text) const
    {
        while (!text.empty()) {
            const auto written = ::write(m_fileDescriptor, text.data(), text.size());
            if (written >= 0)
                text.remove_prefix(static_cast<std::size_t>(written));
            else if (errno != EINTR)
                return;
        }
    }

    const int m_fileDescriptor;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_pending;
    bool m_ended = false;
};

BackgroundOutput::BackgroundOutput(std::ostream& stream, int fileDescriptor) :
    m_stream(stream),
    m_fileDescriptor(fileDescriptor),
    m_replaced(stream.rdbuf(&m_buffer))
{
}

BackgroundOutput::~BackgroundOutput()
{
    m_stream.flush();
    m_stream.rdbuf(m_replaced);
    if (m_writer)
        m_writer->end();
}

void BackgroundOutput::write(const std::string& text)
{
    if (!m_writer) {
        m_writer = std::make_shared<Writer>(m_fileDescriptor);
        m_threads.run([writer = m_writer] { writer->run(); });
    }
    m_writer->add(text);
}

int BackgroundOutput::Buffer::sync()
{
    if (const auto text = str(); !text.empty()) {
        str({});
        m_output.write(text);
    }
    return 0;
}

} // namespace velto
