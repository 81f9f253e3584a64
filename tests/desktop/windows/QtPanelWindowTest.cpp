// SPDX-License-Identifier: MIT
#include "desktop/windows/QtPanelWindow.h"

#include "desktop/windows/FlippedGeometry.h"
#include "desktop/windows/QtScreens.h"
#include "desktop/windows/SheetWindow.h"
#include "desktop/x11/X11Desktop.h"
#include "fixtures/Desktop.h"
#include "fixtures/OtherWindow.h"
#include "support/FakeRunLoop.h"

#include <gtest/gtest.h>

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
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

namespace {

const QRect place{800, 300, 360, 420};

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
bool getsKeyboard(const OtherWindow& window)
{
    return eventually([&] { return window.hasKeyboard() || (Desktop::click(200, 200) && window.hasKeyboard()); });
}

/// A window of another program that has the keyboard.
std::unique_ptr<OtherWindow> focusedWindow()
{
    auto window = std::make_unique<OtherWindow>(QRect{100, 100, 400, 300});
    window->show();
    if (!x11::hasWindowManager())
        x11::focus(window->id());
    EXPECT_TRUE(getsKeyboard(*window));
    return window;
}

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

xcb_window_t idOf(const QWidget& window)
{
    return static_cast<xcb_window_t>(window.winId());
}

/// What the window manager is told of the window's wish for the keyboard.
bool acceptsKeyboard(const QWidget& window)
{
    const auto hints = x11::property(idOf(window), XCB_ATOM_WM_HINTS);
    const auto protocols = x11::property(idOf(window), x11::atom("WM_PROTOCOLS"));
    const bool hasInputHint = hints.size() > 1 && hints[1] == 1;
    EXPECT_EQ(std::ranges::count(protocols, x11::atom("WM_TAKE_FOCUS")), hasInputHint ? 1 : 0);
    return hasInputHint;
}

} // namespace

TEST_F(QtPanelWindowTest, ShowingAndHidingIsSeenAtOnce)
{
    EXPECT_FALSE(panel->isVisible());
    panel->orderFrontRegardless();
    EXPECT_TRUE(panel->isVisible());
    panel->orderFrontRegardless();
    EXPECT_TRUE(panel->isVisible());
    panel->orderOut();
    EXPECT_FALSE(panel->isVisible());
    panel->orderOut();
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(QtPanelWindowTest, ItStandsExactlyWhereItIsPut)
{
    Desktop::current().startWindowManager();
    show();
    EXPECT_TRUE(eventually([&] { return surface->window()->geometry() == place; }));
    EXPECT_EQ(surface->mapToGlobal(QPoint{0, 0}), place.topLeft()) << "no frame around it";

    panel->setFrame({200, 300, 360, 420});
    EXPECT_TRUE(eventually([&] { return surface->mapToGlobal(QPoint{0, 0}) == QPoint(200, 480); }));

    panel->orderOut();
    panel->setFrame({1000, 10, 360, 420});
    show();
    EXPECT_TRUE(eventually([&] { return surface->mapToGlobal(QPoint{0, 0}) == QPoint(1000, 770); }));
}

TEST_F(QtPanelWindowTest, ItIsAboveOnEveryWorkspaceAndInNoTaskBarEachTimeItIsShown)
{
    Desktop::current().startWindowManager();
    for (int round = 0; round < 3; ++round) {
        show();
        for (const char* state :
            {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_STICKY", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
            EXPECT_TRUE(eventually([&] { return hasState(state); })) << state << " " << round;
        EXPECT_TRUE(eventually([&] { return isOnEveryWorkspace(); })) << round;
        panel->orderOut();
    }
}

TEST_F(QtPanelWindowTest, HiddenAndShownInOneGoItIsStillOnEveryWorkspace)
{
    Desktop::current().startWindowManager();
    show();
    for (int round = 0; round < 10; ++round) {
        EXPECT_TRUE(eventually([&] { return isOnEveryWorkspace(); })) << round;
        panel->orderOut();
        panel->orderFrontRegardless();
        EXPECT_TRUE(eventually([&] { return stays([&] { return isOnEveryWorkspace(); }); })) << round;
    }
}

TEST_F(QtPanelWindowTest, PutOnOneWorkspaceItGoesBackToAll)
{
    Desktop::current().startWindowManager();
    show();
    ASSERT_TRUE(eventually([&] { return isOnEveryWorkspace(); }));

    x11::request(id(), "_NET_WM_DESKTOP", {0, 2});
    // The window manager has done that, and what came of it, once it has done this.
    OtherWindow later{{100, 100, 300, 200}};
    later.show();
    ASSERT_TRUE(getsKeyboard(later));

    EXPECT_TRUE(eventually([&] { return stays([&] { return isOnEveryWorkspace(); }); }));
}

TEST_F(QtPanelWindowTest, ItLiesAboveFullScreenWindows)
{
    Desktop::current().startWindowManager();
    OtherWindow film{{0, 0, 800, 600}};
    film.setFullScreen();
    film.show();
    ASSERT_TRUE(getsKeyboard(film));

    show();

    const auto panelIsOnTop = [&] {
        const auto windows = x11::pointer().windows;
        return !windows.empty() && windows.front() == x11::outermost(id());
    };
    ASSERT_TRUE(Desktop::movePointer(place.center().x(), place.center().y()));
    EXPECT_TRUE(eventually(panelIsOnTop));
    EXPECT_TRUE(stays(panelIsOnTop));
    EXPECT_TRUE(film.hasKeyboard());
}

class QtPanelWindowUnder : public QtPanelWindowTest, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override
    {
        if (*GetParam())
            Desktop::current().startWindowManager(QString::fromLatin1(GetParam()));
    }
};

INSTANTIATE_TEST_SUITE_P(WindowManagers, QtPanelWindowUnder, testing::Values("", "xfwm4", "openbox"),
    [](const auto& name) { return *name.param ? std::string{name.param} : std::string{"none"}; });

TEST_P(QtPanelWindowUnder, TheKeyboardStaysWhereItIs)
{
    const auto other = focusedWindow();

    for (int round = 1; round <= 5; ++round) {
        show();
        EXPECT_TRUE(stays([&] { return other->hasKeyboard(); })) << "shown " << round;
        ASSERT_TRUE(click(button));
        EXPECT_TRUE(eventually([&] { return clicks == round; }));
        EXPECT_TRUE(stays([&] { return other->hasKeyboard(); })) << "clicked " << round;
        panel->orderFrontRegardless();
        EXPECT_TRUE(stays([&] { return other->hasKeyboard(); })) << "raised " << round;
        panel->orderOut();
        EXPECT_TRUE(eventually([&] { return other->hasKeyboard(); })) << "hidden " << round;
    }
    EXPECT_EQ(dismissals, 0);
}

TEST_P(QtPanelWindowUnder, TextCanBeTypedAndTheKeyboardGoesBackAfter)
{
    const auto other = focusedWindow();
    show();

    ASSERT_TRUE(click(field));
    ASSERT_TRUE(eventually([&] { return field->hasFocus() && surface->window()->isActiveWindow(); }));
    ASSERT_TRUE(Desktop::run("xdotool", {"type", "25"}));
    EXPECT_TRUE(eventually([&] { return field->text() == "25"; })) << field->text().toStdString();

    ASSERT_TRUE(click(button));
    EXPECT_TRUE(eventually([&] { return other->hasKeyboard(); }));
    EXPECT_TRUE(eventually([&] { return clicks == 1; }));
    EXPECT_TRUE(panel->isVisible());

    ASSERT_TRUE(click(field));
    ASSERT_TRUE(eventually([&] { return field->hasFocus() && surface->window()->isActiveWindow(); }));
    panel->orderOut();
    EXPECT_TRUE(eventually([&] { return other->hasKeyboard(); }));
    show();
    // A window manager may look around for a moment after a window that had the keyboard is gone.
    EXPECT_TRUE(eventually([&] { return stays([&] { return other->hasKeyboard(); }); }));
}

TEST_P(QtPanelWindowUnder, EscapeAsksForItsEndWhileTextIsEdited)
{
    const auto other = focusedWindow();
    show();
    ASSERT_TRUE(click(field));
    ASSERT_TRUE(eventually([&] { return field->hasFocus() && surface->window()->isActiveWindow(); }));

    ASSERT_TRUE(Desktop::run("xdotool", {"key", "Escape"}));

    EXPECT_TRUE(eventually([&] { return dismissals == 1; }));
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(eventually([&] { return other->hasKeyboard(); }));
}

TEST_P(QtPanelWindowUnder, MadeKeyItIsUsedByKeysUntilItIsHidden)
{
    const auto other = focusedWindow();
    panel->makeKey();
    EXPECT_TRUE(stays([&] { return other->hasKeyboard(); })) << "hidden";

    for (int round = 1; round <= 3; ++round) {
        show();
        panel->makeKey();
        ASSERT_TRUE(eventually([&] { return hasKeyboard() && button->hasFocus(); })) << round;
        ASSERT_TRUE(Desktop::run("xdotool", {"key", "space"}));
        EXPECT_TRUE(eventually([&] { return clicks == round; }));
        for (const char* key : {"Menu", "shift+F10"})
            ASSERT_TRUE(Desktop::run("xdotool", {"key", key}));
        EXPECT_TRUE(eventually([&] { return menus == 2 * round; }));

        ASSERT_TRUE(Desktop::run("xdotool", {"key", "Escape"}));
        EXPECT_TRUE(eventually([&] { return dismissals == round; }));
        EXPECT_TRUE(eventually([&] { return other->hasKeyboard(); }));
    }
    show();
    EXPECT_TRUE(eventually([&] { return stays([&] { return other->hasKeyboard(); }); })) << "only shown";
}

TEST_P(QtPanelWindowUnder, APressOnAButtonGivesTheKeyboardBack)
{
    const auto other = focusedWindow();
    show();
    panel->makeKey();
    ASSERT_TRUE(eventually([&] { return button->hasFocus(); }));

    ASSERT_TRUE(click(button));

    EXPECT_TRUE(eventually([&] { return clicks == 1; }));
    EXPECT_TRUE(eventually([&] { return other->hasKeyboard(); }));
}

TEST_F(QtPanelWindowTest, AKeyboardTakenElsewhereMeanwhileIsNotTakenBack)
{
    Desktop::current().startWindowManager();
    const auto first = focusedWindow();
    OtherWindow second{{1400, 100, 400, 300}};
    second.show();
    ASSERT_TRUE(eventually([&] { return second.hasKeyboard(); }));
    show();
    ASSERT_TRUE(click(field));
    ASSERT_TRUE(eventually([&] { return surface->window()->isActiveWindow(); }));

    ASSERT_TRUE(Desktop::click(200, 200));

    EXPECT_TRUE(eventually([&] { return first->hasKeyboard(); }));
    EXPECT_TRUE(stays([&] { return first->hasKeyboard(); }));
}

TEST(TakingPanelTest, AskedForItTakesTheKeyboardAndLosingItAsksForItsEnd)
{
    Desktop::current().startWindowManager();
    const auto other = focusedWindow();
    int dismissals = 0;
    QtPanelWindow panel{std::make_unique<QPushButton>(QStringLiteral("Start")),
        QtPanelWindow::Handlers{.dismiss = [&] { ++dismissals; }, .openMenu = [] {}}, Focus::taken};
    panel.setFrame(rectFromQt(place));

    panel.orderFrontRegardless();
    EXPECT_TRUE(stays([&] { return other->hasKeyboard(); }));

    panel.makeKeyIfNeeded();
    ASSERT_TRUE(eventually([] { return QApplication::activeWindow() != nullptr; }));
    ASSERT_TRUE(Desktop::run("xdotool", {"key", "Escape"}));
    EXPECT_TRUE(eventually([&] { return dismissals == 1; }));

    ASSERT_TRUE(Desktop::click(200, 200));
    EXPECT_TRUE(eventually([&] { return dismissals == 2; }));
}

TEST(TakingPanelTest, ShownByItselfItAcceptsNoKeyboardBeforeItIsUsed)
{
    Desktop::current().startWindowManager();
    const auto other = focusedWindow();
    auto* button = new QPushButton(QStringLiteral("Start"));
    QtPanelWindow panel{
        std::unique_ptr<QWidget>{button}, QtPanelWindow::Handlers{.dismiss = [] {}, .openMenu = [] {}}, Focus::taken};
    panel.setFrame(rectFromQt(place));
    const auto& window = *button->window();

    for (int round = 0; round < 2; ++round) {
        panel.orderFrontRegardless();
        EXPECT_FALSE(acceptsKeyboard(window)) << round;
        ASSERT_TRUE(eventually([&] { return window.geometry() == place && window.windowHandle()->isExposed(); }));
        EXPECT_FALSE(acceptsKeyboard(window)) << round;

        ASSERT_TRUE(Desktop::click(place.center().x(), place.center().y()));
        EXPECT_TRUE(eventually([&] { return window.isActiveWindow() && acceptsKeyboard(window); })) << round;
        panel.orderOut();
        EXPECT_TRUE(eventually([&] { return other->hasKeyboard(); })) << round;
    }
}

TEST_F(QtPanelWindowTest, AMenuThatIsOpenStaysWhenItComes)
{
    QMenu menu;
    menu.addAction(QStringLiteral("Quit"));
    menu.popup({100, 100});

    show();

    EXPECT_TRUE(stays([&] { return menu.isVisible(); }));
}

TEST_F(QtPanelWindowTest, ItIsAUtilityThatStandsOnNoOtherWindow)
{
    const auto type = x11::atom("_NET_WM_WINDOW_TYPE");
    const auto utility = x11::atom("_NET_WM_WINDOW_TYPE_UTILITY");
    show();

    EXPECT_EQ(x11::property(id(), XCB_ATOM_WM_TRANSIENT_FOR), std::vector<std::uint32_t>{});
    EXPECT_EQ(x11::property(id(), type).at(0), utility);
    panel->makeKey();
    EXPECT_EQ(x11::property(id(), type).at(0), utility);
}

TEST_F(QtPanelWindowTest, ASheetIsMappedAfterItsCardEachTime)
{
    Desktop::current().startWindowManager();
    FakeRunLoop runLoop;
    QtScreens screens{runLoop};
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

TEST_F(QtPanelWindowTest, ASheetThatComesBackWithACardThatIsAskedForHasTheKeyboard)
{
    Desktop::current().startWindowManager();
    const auto other = focusedWindow();
    FakeRunLoop runLoop;
    QtScreens screens{runLoop};
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

TEST_F(QtPanelWindowTest, ASheetThatIsHiddenBeforeItsCardIsOnTheScreenStaysHidden)
{
    FakeRunLoop runLoop;
    QtScreens screens{runLoop};
    SheetWindow sheet{std::make_unique<QLineEdit>(), *surface, screens, [] {}};
    sheet.show();
    sheet.hide();
    show();

    EXPECT_TRUE(stays([&] { return !sheet.isVisible(); }));
}

TEST(TakingPanelTest, ShownAgainItLeavesTheKeyboardToTheSheetOnIt)
{
    Desktop::current().startWindowManager("openbox");
    FloatingWindow card{std::make_unique<QPushButton>(QStringLiteral("Start")), [] {}, Focus::taken};
    card.setGeometry(place);
    card.orderFront();
    card.takeKeyboardIfNeeded();
    ASSERT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == card.windowHandle(); }));
    auto* field = new QLineEdit;
    FakeRunLoop runLoop;
    QtScreens screens{runLoop};
    SheetWindow sheet{std::unique_ptr<QWidget>{field}, card, screens, [] {}, Focus::taken};
    sheet.show();
    sheet.takeKeyboard();
    ASSERT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == sheet.windowHandle(); }));

    card.orderFront();

    EXPECT_TRUE(stays([&] { return QGuiApplication::focusWindow() == sheet.windowHandle(); }));
    ASSERT_TRUE(Desktop::run("xdotool", {"type", "25"}));
    EXPECT_TRUE(eventually([&] { return field->text() == "25"; })) << field->text().toStdString();
}

TEST_F(QtPanelWindowTest, ACloseOfASheetFromOutsideClosesItsContentAlsoOverAHiddenCard)
{
    Desktop::current().startWindowManager();
    FakeRunLoop runLoop;
    QtScreens screens{runLoop};
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

TEST_F(QtPanelWindowTest, WithoutACompositingManagerItIsOpaqueAndCutToItsShape)
{
    surface->setStyleSheet(QStringLiteral("QWidget { background: #c02020; }"));
    OtherWindow behind{{700, 200, 600, 700}};
    behind.show();
    show();
    const QColor background{0x80, 0x80, 0x80};

    EXPECT_TRUE(eventually([&] { return seenAt({180, 10}) == QColor(0xc0, 0x20, 0x20); }));
    for (const QPoint corner : {QPoint{0, 0}, QPoint{359, 0}, QPoint{0, 419}, QPoint{359, 419}, QPoint{3, 1}})
        EXPECT_TRUE(eventually([&] { return seenAt(corner) == background; })) << corner.x() << " " << corner.y();
    for (const QPoint edge : {QPoint{180, 0}, QPoint{180, 419}, QPoint{0, 210}, QPoint{359, 210}, QPoint{12, 12}})
        EXPECT_TRUE(eventually([&] { return seenAt(edge) == QColor(0xc0, 0x20, 0x20); }))
            << edge.x() << " " << edge.y();
}

TEST_F(QtPanelWindowTest, ACompositingManagerThatComesOrGoesIsFollowed)
{
    show();
    EXPECT_FALSE(surface->window()->mask().isEmpty());

    for (int round = 0; round < 3; ++round) {
        OtherWindow compositor{{0, 0, 1, 1}};
        compositor.ownSelection("_NET_WM_CM_S0");
        EXPECT_TRUE(eventually([&] { return surface->window()->mask().isEmpty(); })) << round;
        if (round == 0)
            compositor.disownSelection("_NET_WM_CM_S0");
        else if (round == 1)
            continue; // It ends without a word.
        else
            panel->orderOut();
    }
    EXPECT_TRUE(eventually([&] { return !surface->window()->mask().isEmpty(); }));
}

} // namespace velto
