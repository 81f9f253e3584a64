// SPDX-License-Identifier: MIT
#include "desktop/windows/SwayPlacement.h"

#include "desktop/x11/Pixels.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>

#include <array>
#include <cstdint>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace velto {

namespace {

constexpr int gap = 6; // as under every bar
constexpr int patience = 1000;
constexpr int mostQuestions = 10;

int connectedTo(const QByteArray& path)
{
    sockaddr_un address{};
    if (path.isEmpty() || static_cast<std::size_t>(path.size()) >= sizeof address.sun_path)
        return -1;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (socket >= 0 && ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        ::close(socket);
        return -1;
    }
    return socket;
}

/// A command, as sway's messages are written: a mark, the length, the kind, which is 0, and the text.
QByteArray message(const QByteArray& command)
{
    const std::array<std::uint32_t, 2> header{static_cast<std::uint32_t>(command.size()), 0};
    return "i3-ipc" + QByteArray(reinterpret_cast<const char*>(header.data()), sizeof header) + command;
}

} // namespace

SwayPlacement::SwayPlacement(QWidget& window) : m_window(window), m_socket(connectedTo(qgetenv("SWAYSOCK")))
{
    if (m_socket >= 0)
        window.installEventFilter(this);
}

SwayPlacement::~SwayPlacement()
{
    if (m_socket >= 0)
        ::close(m_socket);
}

void SwayPlacement::hangFromTop(const QRect& area)
{
    const auto* screen = screenAt(area.center());
    const int left = screen ? area.left() - screen->geometry().left() : area.left();
    want(QStringLiteral("position %1 %2").arg(left).arg(gap));
}

void SwayPlacement::standAt(const QRect& area)
{
    want(QStringLiteral("absolute position %1 %2").arg(area.left()).arg(area.top()));
}

void SwayPlacement::insist()
{
    m_patience = QDeadlineTimer(patience);
    m_asked = 0;
}

bool SwayPlacement::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Move && !m_wish.isEmpty() && !m_patience.hasExpired() && ++m_asked <= mostQuestions)
        ask();
    return false;
}

void SwayPlacement::want(const QString& place)
{
    m_wish = place;
    insist();
}

void SwayPlacement::ask()
{
    std::array<char, 4096> answers{};
    while (::recv(m_socket, answers.data(), answers.size(), 0) > 0) { }
    const auto question = message(QStringLiteral("[id=%1] move %2").arg(m_window.winId()).arg(m_wish).toUtf8());
    [[maybe_unused]] const auto sent
        = ::send(m_socket, question.constData(), static_cast<std::size_t>(question.size()), MSG_NOSIGNAL);
}

} // namespace velto
