// SPDX-License-Identifier: MIT
// The least that a program with a time in the panel bar can be in this toolkit: an icon with a number in it, one timer.
#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QSystemTrayIcon>
#include <QTimer>

namespace {

QIcon pictureOf(int second)
{
    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, QString::number(second));
    return QIcon(pixmap);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    int second = 0;
    QSystemTrayIcon icon(pictureOf(second));
    icon.show();
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&] { icon.setIcon(pictureOf(++second % 60)); });
    timer.start(1000);
    return QApplication::exec();
}
