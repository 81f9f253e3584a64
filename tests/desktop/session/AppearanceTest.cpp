// SPDX-License-Identifier: MIT
#include "desktop/session/Appearance.h"

#include "style/Motion.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QProcess>
#include <QTest>

namespace velto {

namespace {

using SettingGroups = QMap<QString, QVariantMap>;

constexpr int patience = 20'000;

/// A bus that nobody else is on, with one connection for the portal and one for the program.
class PrivateBus {
public:
    PrivateBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--print-address"});
        if (!m_daemon.waitForStarted(patience) || !m_daemon.waitForReadyRead(patience))
            return;
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }

    ~PrivateBus()
    {
        QDBusConnection::disconnectFromBus("portal");
        QDBusConnection::disconnectFromBus("program");
        m_daemon.terminate();
        m_daemon.waitForFinished(patience);
    }

    QDBusConnection connection(const QString& name) { return QDBusConnection::connectToBus(m_address, name); }

private:
    QProcess m_daemon;
    QString m_address;
};

class FakePortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(QDBusConnection bus) : m_bus(std::move(bus))
    {
        qDBusRegisterMetaType<SettingGroups>();
        m_bus.registerObject("/org/freedesktop/portal/desktop", this, QDBusConnection::ExportScriptableSlots);
        m_bus.registerService("org.freedesktop.portal.Desktop");
    }

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
    QDBusConnection m_bus;
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

    PrivateBus bus;

private:
    QPalette m_paletteBefore;
};

constexpr auto appearance = "org.freedesktop.appearance";

TEST_F(AppearanceTest, WithoutAPortalThePaletteDecidesAndIsFollowed)
{
    Appearance subject{QDBusConnection("there is no such connection")};
    EXPECT_EQ(shownTheme(), Theme::light);

    QApplication::setPalette(darkDesktop());
    EXPECT_EQ(shownTheme(), Theme::dark);

    QApplication::setPalette(lightDesktop());
    EXPECT_EQ(shownTheme(), Theme::light);
}

TEST_F(AppearanceTest, ThePortalIsAskedOnceAndNotWaitedFor)
{
    FakePortal portal{bus.connection("portal")};
    portal.groups[appearance]["color-scheme"] = 1u;

    Appearance subject{bus.connection("program")};
    EXPECT_EQ(shownTheme(), Theme::light);

    ASSERT_TRUE(comesTo(Theme::dark));
    EXPECT_EQ(portal.questions, 1);
}

TEST_F(AppearanceTest, ThePortalOverridesThePaletteUnlessItHasNoPreference)
{
    FakePortal portal{bus.connection("portal")};
    portal.groups[appearance]["color-scheme"] = 1u;
    Appearance subject{bus.connection("program")};
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
    FakePortal portal{bus.connection("portal")};
    portal.groups[appearance]["color-scheme"] = 1u;
    portal.groups[appearance]["contrast"] = 1u;
    Appearance subject{bus.connection("program")};
    ASSERT_TRUE(comesTo(Theme::darkHighContrast));

    portal.change(appearance, "contrast", 0u);
    ASSERT_TRUE(comesTo(Theme::dark));

    portal.change("org.gnome.desktop.a11y.interface", "high-contrast", true);
    ASSERT_TRUE(comesTo(Theme::darkHighContrast));
}

TEST_F(AppearanceTest, ReducedMotionIsFollowedLive)
{
    FakePortal portal{bus.connection("portal")};
    portal.groups["org.gnome.desktop.interface"]["enable-animations"] = false;
    QWidget widget;
    widget.show();
    Appearance subject{bus.connection("program")};
    EXPECT_TRUE(mayAnimate(widget));

    ASSERT_TRUE(QTest::qWaitFor([&] { return !mayAnimate(widget); }, patience));
    portal.change("org.gnome.desktop.interface", "enable-animations", true);

    ASSERT_TRUE(QTest::qWaitFor([&] { return mayAnimate(widget); }, patience));
    widget.hide();
    EXPECT_FALSE(mayAnimate(widget));
}

TEST_F(AppearanceTest, APortalThatComesLaterIsHeard)
{
    Appearance subject{bus.connection("program")};
    FakePortal portal{bus.connection("portal")};
    EXPECT_EQ(shownTheme(), Theme::light);

    portal.change(appearance, "color-scheme", 1u);
    ASSERT_TRUE(comesTo(Theme::dark));
}

TEST_F(AppearanceTest, SettingsThatMeanNothingHereChangeNothing)
{
    FakePortal portal{bus.connection("portal")};
    Appearance subject{bus.connection("program")};
    ASSERT_TRUE(QTest::qWaitFor([&] { return portal.questions == 1; }, patience));
    const auto before = QApplication::palette();

    portal.change(appearance, "accent-color", 7u);
    portal.change(appearance, "color-scheme", QStringLiteral("dark"));
    portal.change("org.gnome.desktop.interface", "enable-animations", false);

    ASSERT_TRUE(QTest::qWaitFor([&] { return subject.reducesMotion(); }, patience));
    EXPECT_EQ(QApplication::palette(), before);
}

} // namespace

} // namespace velto

#include "AppearanceTest.moc"
