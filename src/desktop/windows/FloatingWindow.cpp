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

/// With attributes that count only now.
QWidget& created(QWidget& window)
{
    window.setAttribute(Qt::WA_TranslucentBackground);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.winId();
    return window;
}

} // namespace

FloatingWindow::FloatingWindow(
    std::unique_ptr<QWidget> content, std::function<void()> dismiss, Focus focus, QWidget* parent) :
    QWidget(parent,
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint
            | (focus == Focus::taken ? Qt::WindowFlags{} : Qt::WindowDoesNotAcceptFocus)),
    m_dismiss(std::move(dismiss)),
    m_shape(created(*this)),
    m_hints(*this),
    m_keyboard(*this, focus, keyboardOf(parent), m_dismiss)
{
    setWindowTitle(QApplication::applicationDisplayName());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(content.release());
}

void FloatingWindow::orderFront()
{
    auto* used = isVisible() ? shownSheet() : nullptr;
    if (used && QGuiApplication::focusWindow() != used->windowHandle())
        used = nullptr;
    show();
    raise();
    if (used)
        used->m_keyboard.keep(); // Some window managers give a window that is raised the keyboard.
}

void FloatingWindow::takeKeyboard()
{
    if (!isVisible())
        return;
    if (auto* sheet = shownSheet())
        return sheet->takeKeyboard();

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
    auto& top = shownSheet() ? *shownSheet() : *this;
    top.m_keyboard.takeAsAskedFor();
}

void FloatingWindow::setVisible(bool visible)
{
    if (visible && !isVisible())
        m_hints.announce();
    if (!visible)
        m_keyboard.leave();
    QWidget::setVisible(visible);
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

const WindowKeyboard* FloatingWindow::keyboardOf(QWidget* parent)
{
    const auto* below = qobject_cast<FloatingWindow*>(parent);
    return below ? &below->m_keyboard : nullptr;
}

/// With it the window takes no keys.
FloatingWindow* FloatingWindow::shownSheet() const
{
    for (auto* sheet : findChildren<FloatingWindow*>(Qt::FindDirectChildrenOnly))
        if (sheet->isVisible())
            return sheet;
    return nullptr;
}

} // namespace velto
