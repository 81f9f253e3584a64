// SPDX-License-Identifier: MIT
#include "desktop/status_item/XInputEventMonitor.h"

#include "desktop/status_item/ClickGesture.h"
#include "desktop/status_item/X11Pointer.h"
#include "desktop/x11/X11Desktop.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

// Last: it defines words like None and Bool.
#include <X11/extensions/XInput2.h>

namespace velto {

namespace {

constexpr int leftButton = 1;
constexpr int rightButton = 3;

/// The button in the user's order; raw events carry its number on the device.
int arranged(Display* display, int button)
{
    std::array<unsigned char, 32> map{};
    const int count = XGetPointerMapping(display, map.data(), static_cast<int>(map.size()));
    const auto index = static_cast<std::size_t>(button - 1);
    return button >= 1 && button <= std::min<int>(count, map.size()) ? map.at(index) : button;
}

bool isOurs(xcb_window_t topLevel)
{
    return std::ranges::any_of(QGuiApplication::topLevelWindows(), [topLevel](QWindow* window) {
        return window->isVisible() && window->handle()
            && x11::outermost(static_cast<xcb_window_t>(window->winId())) == topLevel;
    });
}

bool isMenu(xcb_window_t window)
{
    static const xcb_atom_t property = x11::atom("_NET_WM_WINDOW_TYPE");
    static const std::array menus{x11::atom("_NET_WM_WINDOW_TYPE_POPUP_MENU"),
        x11::atom("_NET_WM_WINDOW_TYPE_DROPDOWN_MENU"), x11::atom("_NET_WM_WINDOW_TYPE_MENU")};
    return std::ranges::any_of(
        x11::property(window, property), [](auto type) { return std::ranges::count(menus, type) > 0; });
}

Press::Target targetOf(const x11::Pointer& pointer)
{
    if (std::ranges::any_of(pointer.windows, isMenu))
        return Press::Target::menu;
    return barAt(pointer) ? Press::Target::bar : Press::Target::elsewhere;
}

} // namespace

XInputEventMonitor::XInputEventMonitor(ClickGesture& gesture) : m_gesture(gesture)
{
    m_gesture.setCatchUp([this] { catchUp(); });
    qApp->installEventFilter(this);
}

XInputEventMonitor::~XInputEventMonitor()
{
    m_gesture.setCatchUp(nullptr);
}

/// A press may close the window that it is in. It is to be judged while that is there.
bool XInputEventMonitor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && watched->isWindowType())
        catchUp();
    return false;
}

void XInputEventMonitor::catchUp()
{
    if (!m_isListening)
        return;
    XSync(m_display.get(), False);
    readEvents();
}

void XInputEventMonitor::CloseDisplay::operator()(_XDisplay* display) const
{
    XCloseDisplay(display);
}

std::optional<Subscription> XInputEventMonitor::addOutsidePressMonitor(std::function<void()> handler)
{
    if (connect())
        readEvents(); // Earlier presses are not for the new observer.
    auto token = std::make_shared<Subscription>(m_presses.subscribe(std::move(handler)));
    followInterest();
    return Subscription([this, token] {
        token->cancel();
        if (m_presses.subscriberCount() == 0)
            m_gesture.stopHiding();
        followInterest();
    });
}

void XInputEventMonitor::dismiss()
{
    m_gesture.press({}, watchers());
    m_gesture.release();
}

bool XInputEventMonitor::connect()
{
    if (m_display)
        return true;
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!native || !native->display())
        return false;
    std::unique_ptr<_XDisplay, CloseDisplay> display{XOpenDisplay(DisplayString(native->display()))};
    int firstEvent = 0;
    int firstError = 0;
    int major = 2;
    int minor = 2;
    if (!display || !XQueryExtension(display.get(), "XInputExtension", &m_extension, &firstEvent, &firstError)
        || XIQueryVersion(display.get(), &major, &minor) != Success || std::pair{major, minor} < std::pair{2, 2})
        return false;

    m_display = std::move(display);
    m_notifier = std::make_unique<QSocketNotifier>(ConnectionNumber(m_display.get()), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, this, &XInputEventMonitor::readEvents);
    return true;
}

void XInputEventMonitor::followInterest()
{
    const bool isWanted = m_presses.subscriberCount() > 0 || m_gesture.isUnderway();
    if (!m_display || isWanted == m_isListening)
        return;

    m_isListening = isWanted;
    std::array<unsigned char, XIMaskLen(XI_LASTEVENT)> bits{};
    if (isWanted) {
        for (const int type : {XI_RawButtonPress, XI_RawButtonRelease, XI_RawTouchBegin, XI_RawTouchEnd})
            XISetMask(bits.data(), type);
    }
    XIEventMask mask{XIAllMasterDevices, static_cast<int>(bits.size()), bits.data()};
    XISelectEvents(m_display.get(), DefaultRootWindow(m_display.get()), &mask, 1);
    XSelectInput(m_display.get(), DefaultRootWindow(m_display.get()), isWanted ? SubstructureNotifyMask : NoEventMask);
    m_menus.clear();
    XFlush(m_display.get());
}

void XInputEventMonitor::readEvents()
{
    while (XPending(m_display.get()) > 0) {
        XEvent event;
        XNextEvent(m_display.get(), &event);
        if (event.type == MapNotify) {
            if (isMenu(static_cast<xcb_window_t>(event.xmap.window)))
                m_menus.insert(event.xmap.window);
        } else if (event.type == UnmapNotify) {
            if (m_menus.erase(event.xunmap.window) > 0 && m_menus.empty())
                m_gesture.menusGone();
        } else if (event.type == GenericEvent && event.xcookie.extension == m_extension
            && XGetEventData(m_display.get(), &event.xcookie)) {
            const XIRawEvent raw = *static_cast<const XIRawEvent*>(event.xcookie.data);
            XFreeEventData(m_display.get(), &event.xcookie);
            readRawEvent(raw.evtype, raw.flags, raw.detail);
        }
    }
    followInterest();
}

void XInputEventMonitor::readRawEvent(int type, int flags, int detail)
{
    if (type == XI_RawTouchBegin) {
        press(false);
    } else if (type == XI_RawTouchEnd) {
        m_gesture.release();
    } else if ((flags & XIPointerEmulated) == 0) {
        // A touch has its own events.
        const int button = arranged(m_display.get(), detail);
        if (button != leftButton && button != rightButton)
            return;
        if (type == XI_RawButtonPress)
            press(button == rightButton);
        else
            m_gesture.release();
    }
}

void XInputEventMonitor::press(bool isSecondary)
{
    const x11::Pointer pointer = x11::pointer();
    const bool isOutside = pointer.windows.empty() || !isOurs(pointer.windows.front());
    m_gesture.press(
        {targetOf(pointer), isSecondary || pointer.controlIsHeld}, isOutside ? watchers() : std::function<void()>{});
}

std::function<void()> XInputEventMonitor::watchers()
{
    if (m_presses.subscriberCount() == 0)
        return {};
    return [this] { m_presses.send(); };
}

} // namespace velto
