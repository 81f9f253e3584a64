// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/sound/BackgroundThreads.h"

#include <memory>
#include <ostream>
#include <sstream>

namespace velto {

/// Takes over a stream: what is flushed into it goes to a file descriptor in the background, so that a
/// pipe that nobody reads holds up nothing.
///
/// Going away gives the stream back, and waits up to half a second for what is still to be written.
class BackgroundOutput {
public:
    /// `stream` must outlive this.
    BackgroundOutput(std::ostream& stream, int fileDescriptor);
    BackgroundOutput(const BackgroundOutput&) = delete;
    BackgroundOutput& operator=(const BackgroundOutput&) = delete;
    ~BackgroundOutput();

private:
    class Writer;

    /// Hands its content on with each flush.
    class Buffer final : public std::stringbuf {
    public:
        explicit Buffer(BackgroundOutput& output) : std::stringbuf(std::ios::out), m_output(output) { }

    protected:
        int sync() override;

    private:
        BackgroundOutput& m_output;
    };

    void write(const std::string& text);

    std::ostream& m_stream;
    int m_fileDescriptor;
    Buffer m_buffer{*this};
    std::streambuf* m_replaced;
    BackgroundThreads m_threads;
    std::shared_ptr<Writer> m_writer; ///< Null before the first flush.
};

} // namespace velto
