// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/status_item/DBusPicture.h"
#include "platform/Application.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QPoint>

#include <functional>

namespace velto {

/// The program's entry in the panel bar of the session, as an object on the bus.
///
/// Says something on the bus only when what a host shows has changed. Main thread only.
class StatusNotifierItem : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")

    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ id)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconThemePath READ nothing)
    Q_PROPERTY(QString IconName READ nothing)
    Q_PROPERTY(velto::DBusPictures IconPixmap READ pictures)
    Q_PROPERTY(QString IconAccessibleDesc READ description)
    Q_PROPERTY(QString OverlayIconName READ nothing)
    Q_PROPERTY(velto::DBusPictures OverlayIconPixmap READ noPictures)
    Q_PROPERTY(QString AttentionIconName READ nothing)
    Q_PROPERTY(velto::DBusPictures AttentionIconPixmap READ noPictures)
    Q_PROPERTY(QString AttentionMovieName READ nothing)
    Q_PROPERTY(velto::DBusToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ labelGuide)

public:
    /// `point` is where the host says the click was, in its own coordinates; may be nonsense.
    using ClickHandler = std::function<void(ClickEvent::Kind kind, QPoint point)>;

    StatusNotifierItem(QDBusConnection bus, ClickHandler onClick);
    ~StatusNotifierItem() override;

    /// Makes the item known to the watcher that owns the well-known name now.
    void registerWithWatcher();

    void setToolTip(const QString& text);
    /// Hosts can always read the text; they are told that it is new only if `announced`.
    void setLabel(const QString& text, bool announced);
    /// One in several sizes; hosts choose.
    void setPictures(const QList<QImage>& pictures);

public Q_SLOTS:
    Q_SCRIPTABLE void Activate(int x, int y);
    Q_SCRIPTABLE void SecondaryActivate(int x, int y);
    Q_SCRIPTABLE void ContextMenu(int x, int y);
    /// Some hosts send one before each click and show a busy pointer until it is used.
    /// A token of more than 256 characters is answered with LimitsExceeded.
    Q_SCRIPTABLE void ProvideXdgActivationToken(const QString& token);
    Q_SCRIPTABLE void Scroll(int delta, const QString& orientation);

Q_SIGNALS:
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewToolTip();
    Q_SCRIPTABLE void XAyatanaNewLabel(const QString& label, const QString& guide);

private:
    [[nodiscard]] QString category() const { return QStringLiteral("ApplicationStatus"); }
    [[nodiscard]] QString id() const { return QStringLiteral("velto"); }
    [[nodiscard]] QString status() const { return QStringLiteral("Active"); }
    [[nodiscard]] int windowId() const { return 0; }
    [[nodiscard]] QString nothing() const { return {}; }
    [[nodiscard]] DBusPictures pictures() const { return m_pictures; }
    [[nodiscard]] DBusPictures noPictures() const { return {}; }
    [[nodiscard]] DBusToolTip toolTip() const { return m_toolTip; }
    [[nodiscard]] QString description() const { return m_toolTip.title; }
    [[nodiscard]] bool itemIsMenu() const { return false; }
    [[nodiscard]] QDBusObjectPath menu() const;
    [[nodiscard]] QString label() const { return m_label; }
    [[nodiscard]] QString labelGuide() const { return QStringLiteral("00:00"); }

    QDBusConnection m_bus;
    ClickHandler m_onClick;
    DBusPictures m_pictures;
    DBusToolTip m_toolTip;
    QString m_label;
};

} // namespace velto
