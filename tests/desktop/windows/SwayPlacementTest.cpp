// SPDX-License-Identifier: MIT
#include "desktop/windows/SwayPlacement.h"

#include "fixtures/Desktop.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace velto {

namespace {

/// Sway's end of the socket.
class SwayPlacementTest : public testing::Test {
protected:
    SwayPlacementTest()
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const auto path = (folder.path() / "sway").string();
        std::memcpy(address.sun_path, path.data(), path.size());
        EXPECT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::listen(listener, 1), 0);
        qputenv("SWAYSOCK", path.c_str());
        placement = std::make_unique<SwayPlacement>(window);
        connection = ::accept(listener, nullptr, nullptr);
    }
    ~SwayPlacementTest() override
    {
        placement.reset();
        ::close(connection);
        ::close(listener);
    }

    /// The messages that have come since the last time.
    [[nodiscard]] QByteArray heard() const
    {
        std::array<char, 4096> bytes{};
        const auto size = ::recv(connection, bytes.data(), bytes.size(), MSG_DONTWAIT);
        return {bytes.data(), std::max<qsizetype>(size, 0)};
    }

    /// The message as sway wants it: in the byte order of the machine.
    [[nodiscard]] QByteArray wish(const QByteArray& place) const
    {
        const auto command = "[id=" + QByteArray::number(window.winId()) + "] move " + place;
        const auto size = static_cast<std::uint32_t>(command.size());
        return "i3-ipc" + QByteArray(reinterpret_cast<const char*>(&size), sizeof size) + QByteArray(4, '\0') + command;
    }

    TemporaryFolder folder;
    int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int connection = -1;
    QWidget window;
    std::unique_ptr<SwayPlacement> placement;
};

} // namespace

TEST_F(SwayPlacementTest, AnswersAMoveByTheWish)
{
    placement->hangFromTop({800, 300, 360, 420});
    window.move(460, 190);
    window.show();
    EXPECT_TRUE(eventually([&] { return heard().contains(wish("position 800 6")); }));

    placement->standAt({780, 36, 500, 650});
    window.move(390, 75);
    EXPECT_TRUE(eventually([&] { return heard().contains(wish("absolute position 780 36")); }));
}

TEST_F(SwayPlacementTest, LeavesAlonePlacesThatComeLaterAndOneThatInsists)
{
    placement->hangFromTop({800, 300, 360, 420});
    window.show();
    for (int x = 0; x < 20; ++x)
        window.move(x, 100);
    QTest::qWait(100);
    EXPECT_EQ(heard().count("i3-ipc"), 10);

    placement->insist();
    QTest::qWait(1100);
    (void)heard();
    window.move(500, 500);
    QTest::qWait(100);
    EXPECT_TRUE(heard().isEmpty());
}

} // namespace velto
