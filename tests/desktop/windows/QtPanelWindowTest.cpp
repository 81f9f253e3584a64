// SPDX-License-Identifier: MIT
#include "QtPanelWindowFixture.h"

#include <QMenu>

namespace velto {

namespace {

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

TEST_F(QtPanelWindowTest, ClosedByTheWindowManagerItIsDismissedAndCanBeShownAgain)
{
    for (int round = 1; round <= 2; ++round) {
        show();
        EXPECT_TRUE(surface->window()->close()) << "A close that is refused would refuse the end of the session, too.";
        EXPECT_EQ(dismissals, round);
        EXPECT_FALSE(panel->isVisible());
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
