// SPDX-License-Identifier: MIT
#include "desktop/QtPanelWindow.h"

#include "desktop/FlippedGeometry.h"
#include "desktop/X11Desktop.h"
#include "style/ContinuousRect.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

#include <xcb/xfixes.h>

namespace velto {

namespace {

constexpr double cornerRadius = 18;

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

/// The window itself.
class QtPanelWindow::Surface final : public QWidget, public QAbstractNativeEventFilter {
public:
    Surface(std::unique_ptr<QWidget> content, std::function<void()> dismiss, Focus focus) :
        QWidget(nullptr,
            Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint
                | (focus == Focus::taken ? Qt::WindowFlags{} : Qt::WindowDoesNotAcceptFocus)),
        m_dismiss(std::move(dismiss)),
        m_focus(focus)
    {
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
        setAttribute(Qt::WA_ShowWithoutActivating, focus == Focus::leftAlone);
        setWindowTitle(QApplication::applicationDisplayName());
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins({});
        layout->addWidget(content.release());

        winId();
        if (focus == Focus::leftAlone)
            watchTextEditing();
        if (x11::connection())
            watchCompositing();
    }

    void orderFront()
    {
        if (!isVisible()) {
            // A window manager forgets what a hidden window was.
            if (x11::connection())
                announceState();
            show();
        }
        raise();
        if (m_focus == Focus::taken)
            activateWindow();
    }

    void orderOut()
    {
        setAcceptsFocus(false);
        hide();
    }

    bool nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/) override
    {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & 0x7f) == m_selectionEvent)
            followCompositing();
        return false;
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        if (!m_isComposited)
            QPainter(this).fillRect(rect(), palette().window());
    }

    void resizeEvent(QResizeEvent* /*event*/) override { followShape(); }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Cancel))
            m_dismiss();
        else
            QWidget::keyPressEvent(event);
    }

    bool event(QEvent* event) override
    {
        const bool isHandled = QWidget::event(event);
        if (event->type() == QEvent::WindowDeactivate && m_focus == Focus::taken && isVisible())
            m_dismiss();
        return isHandled;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            setAcceptsFocus(takesText(childAt(static_cast<QMouseEvent*>(event)->position().toPoint())));
        return QWidget::eventFilter(watched, event);
    }

private:
    /// Text can only be typed where the keyboard is: a press on a text field fetches it.
    void watchTextEditing()
    {
        windowHandle()->installEventFilter(this);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
            if (!isWithin(this, now))
                setAcceptsFocus(false);
        });
    }

    void setAcceptsFocus(bool accepts)
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

        if (accepts) {
            m_previouslyFocused = x11::focusedWindow();
            x11::focus(self);
        } else if (wasActive && m_previouslyFocused != XCB_WINDOW_NONE) {
            x11::focus(m_previouslyFocused);
        }
    }

    void announceState()
    {
        const auto self = static_cast<xcb_window_t>(winId());
        x11::setProperty(self, x11::atom("_NET_WM_STATE"), XCB_ATOM_ATOM,
            {x11::atom("_NET_WM_STATE_ABOVE"), x11::atom("_NET_WM_STATE_STICKY"),
                x11::atom("_NET_WM_STATE_SKIP_TASKBAR"), x11::atom("_NET_WM_STATE_SKIP_PAGER")});
        constexpr std::uint32_t everyWorkspace = 0xffffffff;
        x11::setProperty(self, x11::atom("_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, {everyWorkspace});
    }

    void watchCompositing()
    {
        xcb_connection_t* connection = x11::connection();
        const auto* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
        if (extension && extension->present) {
            m_selectionEvent = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
            xcb_xfixes_select_selection_input(connection, static_cast<xcb_window_t>(winId()),
                x11::atom("_NET_WM_CM_S0"),
                XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                    | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                    | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
            qApp->installNativeEventFilter(this);
        }
        followCompositing();
    }

    void followCompositing()
    {
        const bool isComposited = x11::hasCompositingManager();
        if (std::exchange(m_isComposited, isComposited) == isComposited)
            return;
        followShape();
        update();
    }

    void followShape()
    {
        if (m_isComposited)
            clearMask();
        else
            setMask(QRegion(continuousRoundedRect(rect(), cornerRadius).toFillPolygon().toPolygon()));
    }

    std::function<void()> m_dismiss;
    Focus m_focus;
    bool m_acceptsFocus = false;
    bool m_isComposited = true;
    int m_selectionEvent = -1;
    xcb_window_t m_previouslyFocused = XCB_WINDOW_NONE;
};

QtPanelWindow::QtPanelWindow(std::unique_ptr<QWidget> content, std::function<void()> dismiss, Focus focus) :
    m_surface(std::make_unique<Surface>(std::move(content), std::move(dismiss), focus))
{
}

QtPanelWindow::~QtPanelWindow() = default;

bool QtPanelWindow::isVisible() const
{
    return m_surface->isVisible();
}

void QtPanelWindow::setFrame(const Rect& frame)
{
    m_surface->setGeometry(rectToQt(frame).toRect());
}

void QtPanelWindow::orderFrontRegardless()
{
    m_surface->orderFront();
}

void QtPanelWindow::orderOut()
{
    m_surface->orderOut();
}

} // namespace velto
