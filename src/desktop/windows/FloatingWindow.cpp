// SPDX-License-Identifier: MIT
#include "desktop/windows/FloatingWindow.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace velto {

namespace {

/// Qt puts a tool without a parent on an invisible window, and window managers then deny it things.
Qt::WindowType typeOn(const QWidget* parent)
{
    return parent ? Qt::Tool : Qt::Window;
}

/// With attributes that must be set around its creation.
QWidget& created(QWidget& window)
{
    window.setAttribute(Qt::WA_TranslucentBackground);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.winId();
    // Takes effect when the window's flags change next.
    constexpr int utility = 0x20;
    window.windowHandle()->setProperty("_q_xcb_wm_window_type", utility);
    // Qt closes the menus that are open when a window comes, unless it takes that window for a tool.
    window.overrideWindowFlags((window.windowFlags() & ~Qt::WindowType_Mask) | Qt::Tool);
    return window;
}

} // namespace

FloatingWindow::FloatingWindow(
    std::unique_ptr<QWidget> content, std::function<void()> dismiss, Focus focus, QWidget* parent) :
    QWidget(parent, typeOn(parent) | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint),
    m_dismiss(std::move(dismiss)),
    m_shape(created(*this)),
    m_hints(*this),
    m_sway(*this),
    m_keyboard(*this, focus, below() ? &below()->m_keyboard : nullptr, m_dismiss)
{
    windowHandle()->installEventFilter(this);
    setWindowTitle(QApplication::applicationDisplayName());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(content.release());
}

void FloatingWindow::place(const QRect& area)
{
    if (below())
        m_sway.standAt(area);
    else
        m_sway.hangFromTop(area);
    setGeometry(area);
}

void FloatingWindow::orderFront()
{
    auto* used = isVisible() ? sheet() : nullptr;
    if (used && QGuiApplication::focusWindow() != used->windowHandle())
        used = nullptr;
    show();
    raise();
    if (used)
        used->m_keyboard.keep(); // Some window managers give a window that is raised the keyboard.
}

void FloatingWindow::takeKeyboard()
{
    if (!m_isWanted)
        return;
    if (auto* top = sheet())
        return top->takeKeyboard();

    if (!focusWidget() || !(focusWidget()->focusPolicy() & Qt::TabFocus))
        focusNextPrevChild(true);
    if (auto* field = qobject_cast<QLineEdit*>(focusWidget()))
        field->selectAll();
    else
        setAttribute(Qt::WA_KeyboardFocusChange);
    m_keyboard.take();
}

void FloatingWindow::takeKeyboardIfNeeded()
{
    if (sheet())
        takeKeyboard();
    else
        m_keyboard.takeAsAskedFor();
}

void FloatingWindow::setVisible(bool visible)
{
    m_isWanted = visible;
    if (visible && below() && !below()->m_isOnScreen)
        return; // Window managers ignore a parent that is mapped later.
    if (visible && !isVisible()) {
        m_hints.announce();
        m_sway.insist();
    }
    if (!visible) {
        m_isOnScreen = false;
        m_keyboard.leave();
    }
    QWidget::setVisible(visible);
}

bool FloatingWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == windowHandle() && event->type() == QEvent::Expose && isVisible() && windowHandle()->isExposed()) {
        m_isOnScreen = true;
        m_keyboard.arrive();
        if (auto* waiting = sheet(); waiting && !waiting->isVisible())
            waiting->show();
    }
    return QWidget::eventFilter(watched, event);
}

void FloatingWindow::closeEvent(QCloseEvent* /*event*/)
{
    m_dismiss();
}

void FloatingWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        m_dismiss();
    else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        emit menuRequested(); // Qt knows the menu key only.
    else
        QWidget::keyPressEvent(event);
}

void FloatingWindow::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        emit menuRequested();
}

/// The window on this one that is shown or will be. While there is one, this takes no keys.
FloatingWindow* FloatingWindow::sheet() const
{
    for (auto* sheet : findChildren<FloatingWindow*>(Qt::FindDirectChildrenOnly))
        if (sheet->m_isWanted)
            return sheet;
    return nullptr;
}

} // namespace velto
