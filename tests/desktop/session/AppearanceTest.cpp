// SPDX-License-Identifier: MIT
#include "desktop/session/Appearance.h"

#include "desktop/bus/SessionBus.h"
#include "desktop/bus/SettingsPortal.h"
#include "fixtures/Bus.h"
#include "style/Motion.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QSignalSpy>
#include <QTest>

namespace velto {

namespace {

using SettingGroups = QMap<QString, QVariantMap>;

constexpr int patience = 20'000;

/// Another program on the bus of the tests.
class FakePortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakePortal()
    {
        qDBusRegisterMetaType<SettingGroups>();
        m_bus.registerObject("/org/freedesktop/portal/desktop", this, QDBusConnection::ExportScriptableSlots);
        m_bus.registerService("org.freedesktop.portal.Desktop");
    }
    ~FakePortal() override { QDBusConnection::disconnectFromBus("portal"); }

    void change(const QString& group, const QString& key, const QVariant& value)
    {
        groups[group][key] = value;
        auto signal = QDBusMessage::createSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged");
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

    SettingGroups groups;
    int questions = 0;

public slots:
    Q_SCRIPTABLE QMap<QString, QVariantMap> ReadAll(const QStringList&)
    {
        ++questions;
        return groups;
    }

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
};

class AppearanceTest : public testing::Test {
protected:
    AppearanceTest() : m_paletteBefore(QApplication::palette()) { QApplication::setPalette(lightDesktop()); }
    ~AppearanceTest() override { QApplication::setPalette(m_paletteBefore); }

    static QPalette lightDesktop() { return QPalette(QColor(0xef, 0xef, 0xef)); }
    static QPalette darkDesktop() { return QPalette(QColor(0x30, 0x30, 0x34)); }
    static Theme shownTheme() { return themeOf(QApplication::palette()); }
    static bool comesTo(Theme theme)
    {
        return QTest::qWaitFor([theme] { return shownTheme() == theme; }, patience);
    }

    SessionBus bus{"program"};

private:
    QPalette m_paletteBefore;
};

constexpr auto appearance = "org.freedesktop.appearance";

TEST_F(AppearanceTest, WithoutAPortalThePaletteDecidesAndIsFollowed)
{
    Appearance subject;
    EXPECT_EQ(shownTheme(), Theme::light);

    QApplication::setPalette(darkDesktop());
    EXPECT_EQ(shownTheme(), Theme::dark);

    QApplication::setPalette(lightDesktop());
    EXPECT_EQ(shownTheme(), Theme::light);
}

TEST_F(AppearanceTest, ThePortalIsAskedOnceAndNotWaitedFor)
{
    FakePortal portal;
    portal.groups[appearance]["color-scheme"] = 1u;

    Appearance subject{bus};
    EXPECT_EQ(shownTheme(), Theme::light);

    ASSERT_TRUE(comesTo(Theme::dark));
    EXPECT_EQ(portal.questions, 1);
}

TEST_F(AppearanceTest, APortalThatComesLaterIsAskedToo)
{
    Appearance subject{bus};
    QTest::qWait(200); // until nobody has answered
    FakePortal portal;
    portal.groups[appearance]["color-scheme"] = 1u;

    EXPECT_TRUE(comesTo(Theme::dark));
}

TEST_F(AppearanceTest, WhatTheNextPortalDoesNotTellOfIsForgotten)
{
    Appearance subject{bus};
    {
        FakePortal portal;
        portal.groups[appearance]["color-scheme"] = 1u;
        ASSERT_TRUE(comesTo(Theme::dark));
    }
    FakePortal portal;
    portal.groups[appearance]["contrast"] = 0u;

    EXPECT_TRUE(comesTo(Theme::light));
}

TEST_F(AppearanceTest, KeepsNoMoreThanADesktopHas)
{
    SettingsPortal settings({appearance});
    settings.ask(bus.connection());
    FakePortal portal;
    portal.change(appearance, "text", QString(10'000, 'x'));
    for (int number = 0; number < 1000; ++number)
        portal.change(appearance, QStringLiteral("key %1").arg(number), 1u);

    ASSERT_TRUE(QTest::qWaitFor([&] { return settings.setting(appearance, "key 0").isValid(); }, patience));
    QTest::qWait(500);
    EXPECT_FALSE(settings.setting(appearance, "text").isValid());
    EXPECT_FALSE(settings.setting(appearance, "key 999").isValid());
}

TEST_F(AppearanceTest, ThePortalOverridesThePaletteUnlessItHasNoPreference)
{
    FakePortal portal;
    portal.groups[appearance]["color-scheme"] = 1u;
    Appearance subject{bus};
    ASSERT_TRUE(comesTo(Theme::dark));

    portal.change(appearance, "color-scheme", 2u);
    ASSERT_TRUE(comesTo(Theme::light));
    QApplication::setPalette(darkDesktop());
    EXPECT_EQ(shownTheme(), Theme::light);

    portal.change(appearance, "color-scheme", 0u);
    ASSERT_TRUE(comesTo(Theme::dark));
}

TEST_F(AppearanceTest, HighContrastIsFollowedLive)
{
    FakePortal portal;
    portal.groups[appearance]["color-scheme"] = 1u;
    portal.groups[appearance]["contrast"] = 1u;
    Appearance subject{bus};
    ASSERT_TRUE(comesTo(Theme::darkHighContrast));

    portal.change(appearance, "contrast", 0u);
    ASSERT_TRUE(comesTo(Theme::dark));

    portal.change("org.gnome.desktop.a11y.interface", "high-contrast", true);
    ASSERT_TRUE(comesTo(Theme::darkHighContrast));
}

TEST_F(AppearanceTest, ReducedMotionIsFollowedLive)
{
    FakePortal portal;
    portal.groups["org.gnome.desktop.interface"]["enable-animations"] = false;
    QWidget widget;
    widget.show();
    Appearance subject{bus};
    EXPECT_TRUE(mayAnimate(widget));

    ASSERT_TRUE(QTest::qWaitFor([&] { return !mayAnimate(widget); }, patience));
    portal.change("org.gnome.desktop.interface", "enable-animations", true);

    ASSERT_TRUE(QTest::qWaitFor([&] { return mayAnimate(widget); }, patience));
    widget.hide();
    EXPECT_FALSE(mayAnimate(widget));
}

TEST_F(AppearanceTest, APortalThatComesLaterIsHeard)
{
    Appearance subject{bus};
    FakePortal portal;
    EXPECT_EQ(shownTheme(), Theme::light);

    portal.change(appearance, "color-scheme", 1u);
    ASSERT_TRUE(comesTo(Theme::dark));
}

TEST_F(AppearanceTest, ThePortalIsAskedAgainWhenTheBusIsBack)
{
    Appearance subject{bus};
    {
        FakePortal portal;
        portal.change(appearance, "color-scheme", 1u);
        ASSERT_TRUE(comesTo(Theme::dark));
    }
    const QSignalSpy lost{&bus, &SessionBus::lost};

    Bus::current().stop();
    ASSERT_TRUE(QTest::qWaitFor([&] { return lost.size() == 1; }, patience));
    EXPECT_EQ(shownTheme(), Theme::dark);
    Bus::current().start();
    FakePortal portal;
    portal.groups[appearance]["color-scheme"] = 2u;

    EXPECT_TRUE(comesTo(Theme::light));
    portal.change(appearance, "color-scheme", 1u);
    EXPECT_TRUE(comesTo(Theme::dark));
}

TEST_F(AppearanceTest, SettingsThatMeanNothingHereChangeNothing)
{
    FakePortal portal;
    Appearance subject{bus};
    ASSERT_TRUE(QTest::qWaitFor([&] { return portal.questions == 1; }, patience));
    const auto before = QApplication::palette();

    portal.change(appearance, "accent-color", 7u);
    portal.change(appearance, "color-scheme", QStringLiteral("dark"));
    portal.change("org.gnome.desktop.interface", "enable-animations", false);

    ASSERT_TRUE(QTest::qWaitFor([&] { return !QApplication::isEffectEnabled(Qt::UI_General); }, patience));
    EXPECT_EQ(QApplication::palette(), before);
}

} // namespace

} // namespace velto

#include "AppearanceTest.moc"
