// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <ostream>
#include <sstream>
#include <string>

namespace velto {

/// Takes over a stream: what is flushed into it goes to a file descriptor as far as its reader takes it at once, and
/// the rest from the event loop when the reader takes more. So nothing waits for a pipe that nobody reads. While a
/// mebibyte waits for its reader, what is flushed is dropped as a whole.
///
/// Going away gives the stream back and waits for nothing.
class BackgroundOutput {
public:
    /// `stream` must outlive this.
    BackgroundOutput(std::ostream& stream, int fileDescriptor);
    BackgroundOutput(const BackgroundOutput&) = delete;
    BackgroundOutput& operator=(const BackgroundOutput&) = delete;
    ~BackgroundOutput();

private:
    /// Hands its content on with each flush.
    class Buffer final : public std::stringbuf {
    public:
        explicit Buffer(BackgroundOutput& output) : std::stringbuf(std::ios::out), m_output(output) { }

    protected:
        int sync() override;

    private:
        BackgroundOutput& m_output;
    };

    void add(const std::string& text);
    void write();

    std::ostream& m_stream;
    Buffer m_buffer{*this};
    std::streambuf* m_replaced;
    std::string m_pending;
    QSocketNotifier m_writable; ///< Enabled while something is pending.
};

} // namespace velto
