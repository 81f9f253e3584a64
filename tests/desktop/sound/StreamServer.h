// SPDX-License-Identifier: MIT
#pragma once

#include "Process.h"

#include <QJsonObject>

#include <string>

namespace velto {

/// A web radio server of the test's own. See stream_server.py for what it has to offer.
class StreamServer {
public:
    /// Returns once it takes connections, at every address in a network of the test's own and else at 127.0.0.1. The
    /// process trusts its authority from now on.
    StreamServer();
    ~StreamServer();

    /// `port`: "plain", "good", "wrong-host", "expired", "unknown-authority" (all TLS) or "refused".
    [[nodiscard]] std::string url(
        const QString& path, const QString& port = "plain", const QString& host = "127.0.0.1") const;

    [[nodiscard]] int connections(); ///< Ever opened.
    [[nodiscard]] int openConnections();
    [[nodiscard]] int requests();          ///< Ever made.
    [[nodiscard]] int forbiddenRequests(); ///< Of these, for "forbidden".

private:
    void read();

    std::unique_ptr<QProcess> m_process;
    QJsonObject m_ports;
    int m_opened = 0;
    int m_closed = 0;
    int m_requests = 0;
    int m_forbidden = 0;
};

} // namespace velto
