// SPDX-License-Identifier: MIT
#include "desktop/windows/FloatingWindow.h"

#include "desktop/x11/X11Desktop.h"
#include "style/ContinuousRect.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>
#include <vector>

#include <xcb/xfixes.h>

namespace velto {

namespace {

constexpr std::uint32_t everyWorkspace = 0xffffffff;

bool takesText(const QWidget* widget)
{
    return widget && widget->testAttribute(Qt::WA_InputMethodEnabled) && widget->focusPolicy() != Qt::NoFocus;
}

/// Whether `widget` belongs to `window`, be it in one of its pop-ups.
bool isWithin(const QWidget* window, const QWidget* widget)
{
    while (widget && widget != window)
        widget = widget->parentWidget();
    return widget != nullptr;
}

} // namespace

FloatingWindow::FloatingWindow(
    std::unique_ptr<QWidget> content, std::function<void()> dismiss, Focus focus, QWidget* parent) :
    QWidget(parent,
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint
            | (focus == Focus::taken ? Qt::WindowFlags{} : Qt::WindowDoesNotAcceptFocus)),
    m_dismiss(std::move(dismiss)),
    m_focus(focus)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowTitle(QApplication::applicationDisplayName());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(content.release());

    winId();
    if (focus != Focus::taken)
        watchUse();
    else if (!parent)
        watchLoss();
    if (x11::connection()) {
        qApp->installNativeEventFilter(this);
        watchCompositing();
    }
}

void FloatingWindow::setCorners(double radius, ColorName edge)
{
    m_cornerRadius = radius;
    m_edge = edge;
    followShape();
}

void FloatingWindow::orderFront(bool isAskedFor)
{
    auto* used = isVisible() ? shownSheet() : nullptr;
    if (used && QGuiApplication::focusWindow() != used->windowHandle())
        used = nullptr;
    show();
    raise();
    if (m_focus != Focus::taken)
        return;
    if (used)
        return used->claimFocus(); // Some window managers give a window that is raised the keyboard.
    if (!isAskedFor)
        return;
    auto& top = shownSheet() ? *shownSheet() : *this;
    top.activateWindow();
    top.activateWidgets();
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
    if (m_focus == Focus::taken)
        claimFocus();
    else
        setAcceptsFocus(true);
}

void FloatingWindow::setVisible(bool visible)
{
    // A window manager forgets what a hidden window was.
    if (visible && !isVisible() && x11::connection()) {
        m_moves = 0;
        announceState();
    }
    if (!visible)
        m_focus == Focus::taken ? leaveFocusToParent() : setAcceptsFocus(false);
    QWidget::setVisible(visible);
}

bool FloatingWindow::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/)
{
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    const int type = event->response_type & 0x7f;
    if (type == m_selectionEvent)
        followCompositing();
    else if (type == XCB_MAP_NOTIFY
        && static_cast<const xcb_map_notify_event_t*>(message)->window == static_cast<xcb_window_t>(winId()))
        demandState();
    else if (type == XCB_PROPERTY_NOTIFY)
        followWorkspace(*static_cast<const xcb_property_notify_event_t*>(message));
    return false;
}

void FloatingWindow::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_isComposited)
        QPainter(this).fillRect(rect(), color(m_edge, *this));
}

void FloatingWindow::resizeEvent(QResizeEvent* /*event*/)
{
    followShape();
}

void FloatingWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        m_dismiss();
    else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        emit menuRequested(); // The toolkit knows the menu key only.
    else
        QWidget::keyPressEvent(event);
}

void FloatingWindow::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        emit menuRequested();
}

bool FloatingWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == windowHandle() && event->type() == QEvent::MouseButtonPress)
        setAcceptsFocus(needsKeyboard(childAt(static_cast<QMouseEvent*>(event)->position().toPoint())));
    return QWidget::eventFilter(watched, event);
}

/// Keys can only be pressed where the keyboard is: what is used fetches it.
void FloatingWindow::watchUse()
{
    windowHandle()->installEventFilter(this);
    connect(windowHandle(), &QWindow::focusObjectChanged, this, [this](QObject* now) {
        if (needsKeyboard(qobject_cast<QWidget*>(now)))
            setAcceptsFocus(true);
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
        // A menu has no keyboard of its own.
        if (!isWithin(this, now) && !QApplication::activePopupWidget())
            setAcceptsFocus(false);
    });
}

/// Lost is what another program has. Between two windows of this one the toolkit's widgets are all inactive for a
/// moment, its windows are not.
void FloatingWindow::watchLoss()
{
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* now) {
        if (!now && isVisible())
            m_dismiss();
    });
}

/// With it the window takes no keys.
FloatingWindow* FloatingWindow::shownSheet() const
{
    for (auto* sheet : findChildren<FloatingWindow*>(Qt::FindDirectChildrenOnly))
        if (sheet->isVisible())
            return sheet;
    return nullptr;
}

bool FloatingWindow::needsKeyboard(const QWidget* widget) const
{
    if (m_focus == Focus::leftAlone)
        return takesText(widget);
    while (widget && widget != this && !(widget->isEnabled() && widget->focusPolicy() & Qt::ClickFocus))
        widget = widget->parentWidget();
    return widget && widget != this;
}

void FloatingWindow::setAcceptsFocus(bool accepts)
{
    if (m_focus == Focus::taken || accepts == m_acceptsFocus)
        return;
    m_acceptsFocus = accepts;
    const bool wasActive = isActiveWindow();
    // Sets the input hint in place, without mapping the window again.
    windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, !accepts);
    if (!x11::connection())
        return;

    const auto self = static_cast<xcb_window_t>(winId());
    const xcb_atom_t protocols = x11::atom("WM_PROTOCOLS");
    const xcb_atom_t takeFocus = x11::atom("WM_TAKE_FOCUS");
    auto names = x11::property(self, protocols);
    std::erase(names, takeFocus);
    if (accepts)
        names.push_back(takeFocus);
    x11::setProperty(self, protocols, XCB_ATOM_ATOM, names);

    if (accepts)
        fetchFocus();
    else if (wasActive)
        returnFocus();
}

void FloatingWindow::fetchFocus()
{
    const auto* below = qobject_cast<FloatingWindow*>(parentWidget());
    m_previouslyFocused = below && below->m_acceptsFocus ? below->m_previouslyFocused : x11::focusedWindow();
    claimFocus();
}

void FloatingWindow::claimFocus()
{
    if (x11::connection())
        x11::focus(static_cast<xcb_window_t>(winId()));
    activateWidgets();
}

/// Hidden with the keyboard, the window has stayed the active one for one half of the toolkit, which would not tell
/// the other, the widgets, that it is so again.
void FloatingWindow::activateWidgets()
{
    if (QGuiApplication::focusWindow() == windowHandle())
        QT_IGNORE_DEPRECATIONS(QApplication::setActiveWindow(this);) // Nothing else reaches them.
}

void FloatingWindow::returnFocus()
{
    const auto* below = qobject_cast<FloatingWindow*>(parentWidget());
    if (below && below->m_acceptsFocus)
        x11::focus(static_cast<xcb_window_t>(below->winId()));
    else if (m_previouslyFocused != XCB_WINDOW_NONE)
        x11::focus(m_previouslyFocused);
}

/// To lose the keyboard to another program would dismiss the parent, too.
void FloatingWindow::leaveFocusToParent()
{
    auto* below = qobject_cast<FloatingWindow*>(parentWidget());
    if (below && below->isVisible() && isActiveWindow())
        below->activateWindow();
}

void FloatingWindow::announceState()
{
    const auto self = static_cast<xcb_window_t>(winId());
    x11::setProperty(self, x11::atom("_NET_WM_STATE"), XCB_ATOM_ATOM,
        {x11::atom("_NET_WM_STATE_ABOVE"), x11::atom("_NET_WM_STATE_STICKY"), x11::atom("_NET_WM_STATE_SKIP_TASKBAR"),
            x11::atom("_NET_WM_STATE_SKIP_PAGER")});
    x11::setProperty(self, x11::atom("_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, {everyWorkspace});
}

/// A window manager that clears up after the window's hiding may clear away what was announced for its next showing.
void FloatingWindow::demandState()
{
    constexpr std::uint32_t add = 1;
    constexpr std::uint32_t asApplication = 1;
    const auto self = static_cast<xcb_window_t>(winId());
    x11::request(self, "_NET_WM_STATE",
        {add, x11::atom("_NET_WM_STATE_ABOVE"), x11::atom("_NET_WM_STATE_STICKY"), asApplication});
    x11::request(self, "_NET_WM_STATE",
        {add, x11::atom("_NET_WM_STATE_SKIP_TASKBAR"), x11::atom("_NET_WM_STATE_SKIP_PAGER"), asApplication});
    x11::request(self, "_NET_WM_DESKTOP", {everyWorkspace, asApplication});
}

/// A window manager that clears up late takes the new showing for one of an ordinary window and puts it on one
/// workspace. One that insists has its way.
void FloatingWindow::followWorkspace(const xcb_property_notify_event_t& change)
{
    constexpr int mostMoves = 10;
    const auto self = static_cast<xcb_window_t>(winId());
    static const auto workspace = x11::atom("_NET_WM_DESKTOP");
    if (change.window != self || change.atom != workspace || change.state != XCB_PROPERTY_NEW_VALUE || !isVisible())
        return;
    if (x11::property(self, workspace) != std::vector{everyWorkspace} && ++m_moves <= mostMoves)
        demandState();
}

void FloatingWindow::watchCompositing()
{
    xcb_connection_t* connection = x11::connection();
    const auto* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (extension && extension->present) {
        m_selectionEvent = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
        xcb_xfixes_select_selection_input(connection, static_cast<xcb_window_t>(winId()), x11::atom("_NET_WM_CM_S0"),
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    followCompositing();
}

void FloatingWindow::followCompositing()
{
    const bool isComposited = x11::hasCompositingManager();
    if (std::exchange(m_isComposited, isComposited) == isComposited)
        return;
    followShape();
    update();
}

void FloatingWindow::followShape()
{
    if (m_isComposited)
        clearMask();
    else
        setMask(QRegion(continuousRoundedRect(rect(), m_cornerRadius).toFillPolygon().toPolygon()));
}

} // namespace velto
