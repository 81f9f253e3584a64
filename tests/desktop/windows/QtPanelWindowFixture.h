// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/windows/FlippedGeometry.h"
#include "desktop/windows/QtPanelWindow.h"
#include "desktop/x11/X11Desktop.h"
#include "fixtures/Desktop.h"
#include "fixtures/OtherWindow.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

namespace velto {

inline const QRect place{800, 300, 360, 420};

class QtPanelWindowTest : public testing::Test {
protected:
    QtPanelWindowTest()
    {
        auto content = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(content.get());
        button = new QPushButton(QStringLiteral("Start"));
        field = new QLineEdit;
        layout->addWidget(button);
        layout->addWidget(field);
        surface = content.get();
        QObject::connect(button, &QPushButton::clicked, [this] { ++clicks; });
        panel = std::make_unique<QtPanelWindow>(std::move(content),
            QtPanelWindow::Handlers{.dismiss =
                                        [this] {
                                            ++dismissals;
                                            panel->orderOut();
                                        },
                .openMenu = [this] { ++menus; }});
        panel->setFrame(rectFromQt(place));
    }

    void show()
    {
        panel->orderFrontRegardless();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(surface->window()));
    }

    /// Once it stands where it was put: on the way a window manager may tell of other places.
    [[nodiscard]] static bool click(const QWidget* widget)
    {
        if (!eventually([&] { return widget->window()->mapToGlobal(QPoint{}) == place.topLeft(); }))
            return false;
        const QPoint middle = widget->mapToGlobal(widget->rect().center());
        return Desktop::click(middle.x(), middle.y());
    }

    [[nodiscard]] xcb_window_t id() const { return static_cast<xcb_window_t>(surface->window()->winId()); }

    [[nodiscard]] bool hasState(const char* name) const
    {
        return std::ranges::count(x11::property(id(), x11::atom("_NET_WM_STATE")), x11::atom(name)) == 1;
    }

    [[nodiscard]] bool isOnEveryWorkspace() const
    {
        return x11::property(id(), x11::atom("_NET_WM_DESKTOP")) == std::vector<std::uint32_t>{0xffffffff};
    }

    /// For the server: Qt may take it for done before it is.
    [[nodiscard]] bool hasKeyboard() const
    {
        auto* connection = x11::connection();
        const std::unique_ptr<xcb_get_input_focus_reply_t, decltype(&std::free)> reply{
            xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr), &std::free};
        return reply && reply->focus == id();
    }

    /// What is drawn at a place of the panel, with everything that lies over it.
    [[nodiscard]] QColor seenAt(QPoint position) const
    {
        const QPoint global = surface->mapToGlobal(position);
        return QGuiApplication::primaryScreen()->grabWindow(0, global.x(), global.y(), 1, 1).toImage().pixelColor(0, 0);
    }

    QWidget* surface = nullptr;
    QPushButton* button = nullptr;
    QLineEdit* field = nullptr;
    std::unique_ptr<QtPanelWindow> panel;
    int clicks = 0;
    int dismissals = 0;
    int menus = 0;
};

/// Not every window manager gives a window the keyboard unasked: this one lies at (200, 200).
inline bool getsKeyboard(const OtherWindow& window)
{
    return eventually([&] { return window.hasKeyboard() || (Desktop::click(200, 200) && window.hasKeyboard()); });
}

/// A window of another program that has the keyboard.
inline std::unique_ptr<OtherWindow> focusedWindow()
{
    auto window = std::make_unique<OtherWindow>(QRect{100, 100, 400, 300});
    window->show();
    if (!x11::hasWindowManager())
        x11::focus(window->id());
    EXPECT_TRUE(getsKeyboard(*window));
    return window;
}

inline xcb_window_t idOf(const QWidget& window)
{
    return static_cast<xcb_window_t>(window.winId());
}

} // namespace velto
