// SPDX-License-Identifier: MIT
#include "desktop/windows/QtPanelWindow.h"

#include "desktop/windows/FlippedGeometry.h"

#include <utility>

namespace velto {

QtPanelWindow::QtPanelWindow(std::unique_ptr<QWidget> content, Handlers handlers, Focus focus) :
    m_window(std::make_unique<FloatingWindow>(std::move(content), std::move(handlers.dismiss), focus))
{
    QObject::connect(m_window.get(), &FloatingWindow::menuRequested, std::move(handlers.openMenu));
}

QtPanelWindow::~QtPanelWindow() = default;

bool QtPanelWindow::isVisible() const
{
    return m_window->isVisible();
}

Rect QtPanelWindow::currentFrame() const
{
    return rectFromQt(m_window->geometry());
}

void QtPanelWindow::setFrame(const Rect& frame)
{
    m_window->place(rectToQt(frame).toRect());
}

void QtPanelWindow::orderFrontRegardless()
{
    m_window->orderFront();
}

void QtPanelWindow::orderOut()
{
    m_window->hide();
}

void QtPanelWindow::makeKey()
{
    m_window->takeKeyboard();
}

void QtPanelWindow::makeKeyIfNeeded()
{
    m_window->takeKeyboardIfNeeded();
}

} // namespace velto
