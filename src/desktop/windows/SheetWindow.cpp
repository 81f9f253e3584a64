// SPDX-License-Identifier: MIT
#include "desktop/windows/SheetWindow.h"

#include "desktop/windows/FlippedGeometry.h"
#include "desktop/windows/SheetPlacement.h"
#include "platform/Screens.h"

#include <QEvent>
#include <QWindow>

#include <utility>

namespace velto {

SheetWindow::SheetWindow(std::unique_ptr<QWidget> content, QWidget& presenter, Screens& screens,
    std::function<void()> dismiss, Focus focus) :
    FloatingWindow(std::move(content), std::move(dismiss), focus, presenter.window()),
    m_content(*findChild<QWidget*>({}, Qt::FindDirectChildrenOnly)),
    m_panel(*presenter.window()),
    m_screens(screens),
    m_wantedSize(sizeHint())
{
    setWindowTitle(m_content.windowTitle());
    m_panel.installEventFilter(this);
    // Not by window modality: window managers give a modal window the keyboard.
    m_panel.windowHandle()->installEventFilter(this);
    m_screenChanges = screens.changes([this] {
        if (isVisible())
            placeOnPanel();
    });
}

void SheetWindow::setVisible(bool visible)
{
    if (visible)
        placeOnPanel();
    FloatingWindow::setVisible(visible);
}

void SheetWindow::closeEvent(QCloseEvent* /*event*/)
{
    m_content.close();
}

bool SheetWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_panel.windowHandle() && isVisible() && event->isInputEvent())
        return true;
    if (watched == &m_panel && isVisible()) {
        if (event->type() == QEvent::Move)
            placeOnPanel();
        else if (event->type() == QEvent::ZOrderChange)
            raise();
    }
    return FloatingWindow::eventFilter(watched, event);
}

void SheetWindow::placeOnPanel()
{
    const auto panel = rectFromQt(m_panel.geometry());
    const auto screen = m_screens.screenFor(panel);
    if (!screen)
        return;
    const Size wanted{static_cast<double>(m_wantedSize.width()), static_cast<double>(m_wantedSize.height())};
    place(rectToQt(placeSheet(panel, screen->visibleFrame, wanted)).toRect());
}

} // namespace velto
