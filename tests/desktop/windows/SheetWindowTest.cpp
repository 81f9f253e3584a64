// SPDX-License-Identifier: MIT
#include "desktop/windows/SheetWindow.h"

#include "QtPanelWindowFixture.h"
#include "desktop/windows/QtScreens.h"
#include "support/FakeRunLoop.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>

namespace velto {

namespace {

class SheetWindowTest : public QtPanelWindowTest {
protected:
    /// As far as Qt is told.
    static void giveKeyboardTo(const QWidget& window)
    {
        xcb_focus_in_event_t event{};
        event.response_type = XCB_FOCUS_IN;
        event.detail = XCB_NOTIFY_DETAIL_NONLINEAR;
        event.event = idOf(window);
        xcb_send_event(x11::connection(), 0, event.event, 0, reinterpret_cast<const char*>(&event));
        xcb_flush(x11::connection());
    }

    FakeRunLoop runLoop;
    QtScreens screens{runLoop};
};

/// How often `watched` is told of an event of that type.
class EventCounter : public QObject {
public:
    EventCounter(QObject& watched, QEvent::Type type) : m_type(type) { watched.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == m_type;
        return false;
    }

    int count = 0;

private:
    QEvent::Type m_type;
};

/// Windows of this program in the order in which the server maps them.
class Mappings : public QAbstractNativeEventFilter {
public:
    Mappings() { qApp->installNativeEventFilter(this); }

    bool nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/) override
    {
        if ((static_cast<const xcb_generic_event_t*>(message)->response_type & 0x7f) == XCB_MAP_NOTIFY)
            windows.push_back(static_cast<const xcb_map_notify_event_t*>(message)->window);
        return false;
    }

    [[nodiscard]] std::vector<xcb_window_t> of(const std::vector<xcb_window_t>& known) const
    {
        auto found = windows;
        std::erase_if(found, [&](auto window) { return std::ranges::count(known, window) == 0; });
        return found;
    }

private:
    std::vector<xcb_window_t> windows;
};

} // namespace

TEST_F(SheetWindowTest, ASheetIsMappedAfterItsCardEachTime)
{
    Desktop::current().startWindowManager();
    auto* text = new QLineEdit;
    SheetWindow sheet{std::unique_ptr<QWidget>{text}, *surface, screens, [] {}};
    for (int round = 0; round < 3; ++round) {
        const Mappings mappings;
        sheet.show(); // As when the card brings along what is open on it.
        panel->orderFrontRegardless();
        panel->makeKey();

        ASSERT_TRUE(eventually([&] { return sheet.isVisible() && sheet.windowHandle()->isExposed(); })) << round;
        const std::vector ordered{id(), idOf(sheet)};
        EXPECT_EQ(mappings.of(ordered), ordered) << round;
        EXPECT_TRUE(eventually([&] { return text->hasFocus() && sheet.isActiveWindow(); })) << round;
        sheet.hide();
        panel->orderOut();
    }
}

TEST_F(SheetWindowTest, ASheetThatGetsTheKeyboardWhileItIsHiddenHasItsFieldFocusedLater)
{
    Desktop::current().startWindowManager();
    auto* text = new QLineEdit;
    SheetWindow sheet{std::unique_ptr<QWidget>{text}, *surface, screens, [] {}};
    const auto hasKeyboard = [&] { return text->hasFocus() && sheet.isActiveWindow(); };
    const auto showBoth = [&] {
        sheet.show();
        panel->orderFrontRegardless();
        panel->makeKey();
    };
    showBoth();
    ASSERT_TRUE(eventually(hasKeyboard));
    sheet.hide();
    panel->orderOut();

    ASSERT_TRUE(eventually([] { return !QGuiApplication::focusWindow(); }));
    giveKeyboardTo(sheet);
    ASSERT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == sheet.windowHandle(); }));
    showBoth();

    EXPECT_TRUE(eventually(hasKeyboard));
}

TEST_F(SheetWindowTest, ASheetThatComesBackWithACardThatIsAskedForHasTheKeyboard)
{
    Desktop::current().startWindowManager();
    const auto other = focusedWindow();
    SheetWindow sheet{std::make_unique<QLineEdit>(), *surface, screens, [] {}};
    show();
    panel->makeKeyIfNeeded();
    EXPECT_TRUE(stays([&] { return other->hasKeyboard(); })) << "the card alone";
    panel->orderOut();

    sheet.show();
    show();
    EXPECT_TRUE(stays([&] { return other->hasKeyboard(); })) << "shown by itself";
    panel->makeKeyIfNeeded();

    EXPECT_TRUE(eventually([&] { return sheet.isActiveWindow() && !other->hasKeyboard(); }));
}

TEST_F(SheetWindowTest, ASheetThatIsHiddenBeforeItsCardIsOnTheScreenStaysHidden)
{
    SheetWindow sheet{std::make_unique<QLineEdit>(), *surface, screens, [] {}};
    sheet.show();
    sheet.hide();
    show();

    EXPECT_TRUE(stays([&] { return !sheet.isVisible(); }));
}

TEST_F(SheetWindowTest, ShownAgainItLeavesTheKeyboardToTheSheetOnIt)
{
    Desktop::current().startWindowManager("openbox");
    FloatingWindow card{std::make_unique<QPushButton>(QStringLiteral("Start")), [] {}, Focus::taken};
    card.setGeometry(place);
    card.orderFront();
    card.takeKeyboardIfNeeded();
    ASSERT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == card.windowHandle(); }));
    auto* text = new QLineEdit;
    SheetWindow sheet{std::unique_ptr<QWidget>{text}, card, screens, [] {}, Focus::taken};
    sheet.show();
    sheet.takeKeyboard();
    ASSERT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == sheet.windowHandle(); }));

    card.orderFront();

    EXPECT_TRUE(stays([&] { return QGuiApplication::focusWindow() == sheet.windowHandle(); }));
    ASSERT_TRUE(Desktop::run("xdotool", {"type", "25"}));
    EXPECT_TRUE(eventually([&] { return text->text() == "25"; })) << text->text().toStdString();
}

TEST_F(SheetWindowTest, ClosedFromOutsideItClosesItsContentEvenOverAHiddenCard)
{
    Desktop::current().startWindowManager();
    for (const bool isHidden : {false, true}) {
        auto* content = new QLineEdit;
        const EventCounter closes{*content, QEvent::Close};
        SheetWindow sheet{std::unique_ptr<QWidget>{content}, *surface, screens, [] {}, Focus::whenUsed};
        show();
        sheet.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&sheet));

        if (isHidden) {
            sheet.hide();
            panel->orderOut();
            EXPECT_TRUE(sheet.close()) << "A close that is refused would refuse the end of the session, too.";
        } else {
            x11::request(static_cast<xcb_window_t>(sheet.winId()), "_NET_CLOSE_WINDOW", {});
        }

        EXPECT_TRUE(eventually([&] { return closes.count == 1 && !sheet.isVisible(); }));
        EXPECT_EQ(panel->isVisible(), !isHidden);
        panel->orderOut();
    }
}

} // namespace velto
