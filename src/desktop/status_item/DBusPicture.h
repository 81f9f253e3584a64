// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>
#include <QMetaType>
#include <QString>

namespace velto {

/// A picture as it travels on the bus: ARGB, four bytes a pixel, most significant byte first, not
/// premultiplied.
struct DBusPicture {
    int width = 0;
    int height = 0;
    QByteArray bytes;
    bool operator==(const DBusPicture&) const = default;
};
using DBusPictures = QList<DBusPicture>;

struct DBusToolTip {
    QString iconName;
    DBusPictures pictures;
    QString title;
    QString text;
};

[[nodiscard]] DBusPicture dbusPicture(const QImage& image);

QDBusArgument& operator<<(QDBusArgument& argument, const DBusPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusPicture& picture);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusToolTip& toolTip);

} // namespace velto

Q_DECLARE_METATYPE(velto::DBusPicture)
Q_DECLARE_METATYPE(velto::DBusToolTip)
