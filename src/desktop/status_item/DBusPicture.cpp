// SPDX-License-Identifier: MIT
#include "desktop/status_item/DBusPicture.h"

#include <QtEndian>

namespace velto {

DBusPicture dbusPicture(const QImage& image)
{
    const auto pixels = image.convertToFormat(QImage::Format_ARGB32);
    const qsizetype bytesPerLine = qsizetype{pixels.width()} * 4;
    DBusPicture picture{pixels.width(), pixels.height(), QByteArray(bytesPerLine * pixels.height(), '\0')};
    auto* out = picture.bytes.data();
    for (int y = 0; y < pixels.height(); ++y) {
        qToBigEndian<quint32>(pixels.constScanLine(y), pixels.width(), out);
        out += bytesPerLine;
    }
    return picture;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusPicture& picture)
{
    argument.beginStructure();
    argument << picture.width << picture.height << picture.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusPicture& picture)
{
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.bytes;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusToolTip& toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.pictures << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusToolTip& toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.pictures >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

} // namespace velto
