// SPDX-License-Identifier: MIT
#include "StreamServer.h"

#include "OwnNetwork.h"

#include <QJsonDocument>
#include <gtest/gtest.h>

namespace velto {

StreamServer::StreamServer()
{
    qputenv("SSL_CERT_FILE", VELTO_AUDIO_MATERIAL "/authority.pem");
    m_process = startProcess("/usr/bin/python3",
        {"-B", VELTO_STREAM_SERVER, VELTO_AUDIO_MATERIAL, OwnNetwork::isEntered() ? "0.0.0.0" : "127.0.0.1"});
    EXPECT_TRUE(eventually([this] {
        read();
        return !m_ports.isEmpty();
    })) << "no stream server";
}

StreamServer::~StreamServer()
{
    m_process->kill();
    m_process->waitForFinished();
}

std::string StreamServer::url(const QString& path, const QString& port, const QString& host) const
{
    const auto* scheme = port == "plain" || port == "refused" ? "http" : "https";
    return QString("%1://%2:%3/%4").arg(scheme, host).arg(m_ports[port].toInt()).arg(path).toStdString();
}

int StreamServer::connections()
{
    read();
    return m_opened;
}

int StreamServer::openConnections()
{
    read();
    return m_opened - m_closed;
}

int StreamServer::requests()
{
    read();
    return m_requests;
}

int StreamServer::forbiddenRequests()
{
    read();
    return m_forbidden;
}

void StreamServer::read()
{
    while (m_process->canReadLine()) {
        const auto event = QJsonDocument::fromJson(m_process->readLine()).object();
        if (event.contains("ports"))
            m_ports = event["ports"].toObject();
        m_opened += event.contains("opened");
        m_closed += event.contains("closed");
        m_requests += event.contains("request");
        m_forbidden += event["request"] == "/forbidden";
    }
}

} // namespace velto
