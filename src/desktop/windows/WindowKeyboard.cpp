// SPDX-License-Identifier: MIT
#include "desktop/windows/WindowKeyboard.h"

#include "desktop/x11/X11Desktop.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <chrono>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace velto {

namespace {

bool takesText(const QWidget* widget)
{
    return widget && widget->testAttribute(Qt::WA_InputMethodEnabled) && widget->focusPolicy() != Qt::NoFocus;
}

/// Until then the keyboard may be on its way to a window of this program, and meanwhile at another program's or none;
/// and a loss that is told may be that of the showing before.
QDeadlineTimer onItsWay;

/// Whether `widget` belongs to `window`, be it in one of its pop-ups.
bool isWithin(const QWidget* window, const QWidget* widget)
{
    while (widget && widget != window)
        widget = widget->parentWidget();
    return widget != nullptr;
}

} // namespace

Focus cardFocus()
{
    return x11::seesTheScreen() ? Focus::leftAlone : Focus::taken;
}

Focus sheetFocus()
{
    return x11::seesTheScreen() ? Focus::whenUsed : Focus::taken;
}

WindowKeyboard::WindowKeyboard(QWidget& window, Focus focus, WindowKeyboard* below, std::function<void()> dismiss) :
    m_window(window),
    m_focus(focus),
    m_below(below),
    m_dismiss(std::move(dismiss))
{
    announce();
    window.windowHandle()->installEventFilter(this);
    if (focus != Focus::taken)
        watchUse();
    else if (!below)
        watchLoss();
}

void WindowKeyboard::take()
{
    if (m_isAccepted)
        claim();
    else
        setAccepted(true);
}

void WindowKeyboard::takeAsAskedFor()
{
    if (m_focus == Focus::taken)
        take();
}

void WindowKeyboard::keep()
{
    if (m_focus == Focus::taken)
        claim();
}

void WindowKeyboard::arrive()
{
    m_isOnScreen = true;
    if (std::exchange(m_isWanted, false))
        claim();
}

void WindowKeyboard::leave()
{
    m_isOnScreen = false;
    m_isWanted = false;
    setAccepted(false);
}

bool WindowKeyboard::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        setAccepted(m_focus == Focus::taken
            || isNeededFor(m_window.childAt(static_cast<QMouseEvent*>(event)->position().toPoint())));
    return false;
}

/// Keys only reach the window that has the keyboard, so the use of a control fetches it.
void WindowKeyboard::watchUse()
{
    connect(m_window.windowHandle(), &QWindow::focusObjectChanged, this, [this](QObject* now) {
        if (isNeededFor(qobject_cast<QWidget*>(now)))
            setAccepted(true);
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
        // A menu has no keyboard of its own.
        if (!isWithin(&m_window, now) && !QApplication::activePopupWidget())
            setAccepted(false);
    });
}

/// Only another program's gain is a loss. Between two of our windows all of Qt's widgets are inactive for a moment; its
/// windows are not.
void WindowKeyboard::watchLoss()
{
    m_judgement.setSingleShot(true);
    m_judgement.callOnTimeout([this] { judgeLoss(); });
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &WindowKeyboard::judgeLoss);
}

void WindowKeyboard::judgeLoss()
{
    if (QGuiApplication::focusWindow() || !m_window.isVisible())
        return;
    if (onItsWay.hasExpired())
        return m_dismiss();
    if (!std::exchange(m_givenBack, QDeadlineTimer()).hasExpired())
        x11::focus(id()); // Some window managers pass it on to another program once the window above is gone.
    m_judgement.start(static_cast<int>(onItsWay.remainingTime()));
}

bool WindowKeyboard::isNeededFor(const QWidget* widget) const
{
    if (m_focus == Focus::leftAlone)
        return takesText(widget);
    while (widget && widget != &m_window && !(widget->isEnabled() && widget->focusPolicy() & Qt::ClickFocus))
        widget = widget->parentWidget();
    return widget && widget != &m_window;
}

void WindowKeyboard::setAccepted(bool isAccepted)
{
    if (isAccepted == m_isAccepted)
        return;
    m_isAccepted = isAccepted;
    if (!isAccepted && m_window.isActiveWindow())
        giveBack();
    announce();
    if (isAccepted)
        fetch();
}

/// In place, without mapping the window again.
void WindowKeyboard::announce()
{
    m_window.windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, !m_isAccepted);
    if (!x11::connection())
        return;
    const xcb_atom_t protocols = x11::atom("WM_PROTOCOLS");
    const xcb_atom_t takeFocus = x11::atom("WM_TAKE_FOCUS");
    auto names = x11::property(id(), protocols);
    std::erase(names, takeFocus);
    if (m_isAccepted)
        names.push_back(takeFocus);
    x11::setProperty(id(), protocols, XCB_ATOM_ATOM, names);
}

void WindowKeyboard::fetch()
{
    if (!x11::connection())
        return;
    m_previouslyFocused = m_below && m_below->m_isAccepted ? m_below->m_previouslyFocused : x11::focusedWindow();
    if (m_below && m_focus == Focus::taken && !m_below->m_isAccepted) {
        // Gets it back from this one: to lose it to another program would dismiss that window, too.
        m_below->m_isAccepted = true;
        m_below->m_previouslyFocused = m_previouslyFocused;
        m_below->announce();
    }
    claim();
}

void WindowKeyboard::claim()
{
    m_isWanted = !m_isOnScreen;
    if (m_isWanted)
        return;
    onItsWay = QDeadlineTimer(1s);
    if (x11::connection())
        x11::focus(id());
    if (QGuiApplication::focusWindow() != m_window.windowHandle())
        return;
    // Hidden with the keyboard, the window has stayed the active one for one half of Qt, which would not tell the
    // other, the widgets, that it is so again.
    QT_IGNORE_DEPRECATIONS(QApplication::setActiveWindow(&m_window);) // Nothing else reaches them.
    // Told so while it was hidden, they have given none of its controls the focus.
    if (auto* used = m_window.focusWidget())
        used->setFocus(Qt::ActiveWindowFocusReason);
}

void WindowKeyboard::giveBack()
{
    if (!x11::connection())
        return;
    if (m_below && m_below->m_isAccepted) {
        m_below->m_givenBack = onItsWay = QDeadlineTimer(1s);
        x11::focus(m_below->id());
    } else if (m_previouslyFocused != XCB_WINDOW_NONE) {
        x11::focus(m_previouslyFocused);
    }
}

xcb_window_t WindowKeyboard::id() const
{
    return static_cast<xcb_window_t>(m_window.winId());
}

} // namespace velto
