// SPDX-License-Identifier: MIT
#include "desktop/session/BackgroundOutput.h"

#include <algorithm>
#include <climits>

#include <poll.h>
#include <unistd.h>

namespace velto {

namespace {

constexpr std::size_t mostPending = 1 << 20;

/// Whether a write of up to PIPE_BUF bytes returns at once, as it also does when nobody reads any more.
bool canWrite(int fileDescriptor)
{
    pollfd descriptor{fileDescriptor, POLLOUT, 0};
    return poll(&descriptor, 1, 0) == 1;
}

} // namespace

BackgroundOutput::BackgroundOutput(std::ostream& stream, int fileDescriptor) :
    m_stream(stream),
    m_replaced(stream.rdbuf(&m_buffer)),
    m_writable(fileDescriptor, QSocketNotifier::Write)
{
    m_writable.setEnabled(false);
    QObject::connect(&m_writable, &QSocketNotifier::activated, [this] { write(); });
}

BackgroundOutput::~BackgroundOutput()
{
    m_stream.flush();
    m_stream.rdbuf(m_replaced);
}

void BackgroundOutput::add(const std::string& text)
{
    if (m_pending.size() >= mostPending)
        return;
    m_pending += text;
    write();
}

void BackgroundOutput::write()
{
    const auto fileDescriptor = static_cast<int>(m_writable.socket());
    std::size_t done = 0;
    while (done < m_pending.size() && canWrite(fileDescriptor)) {
        const auto size = std::min<std::size_t>(m_pending.size() - done, PIPE_BUF);
        const auto written = ::write(fileDescriptor, m_pending.data() + done, size);
        // Whoever could have read it is gone.
        done = written < 0 ? m_pending.size() : done + static_cast<std::size_t>(written);
    }
    m_pending.erase(0, done);
    m_writable.setEnabled(!m_pending.empty());
}

int BackgroundOutput::Buffer::sync()
{
    if (const auto text = str(); !text.empty()) {
        str({});
        m_output.add(text);
    }
    return 0;
}

} // namespace velto
