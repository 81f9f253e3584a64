// SPDX-License-Identifier: MIT
#include "desktop/windows/QtWindow.h"

#include "desktop/windows/FlippedGeometry.h"
#include "desktop/x11/Activation.h"
#include "desktop/x11/X11Desktop.h"
#include "platform/Screens.h"

#include <QDialog>
#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <QVBoxLayout>
#include <QWindow>

#include <string_view>

namespace velto {

namespace {

/// Height kept free for the title bar, which is not known before the window manager has drawn it.
constexpr int titleBarAllowance = 40;

/// Qt puts the program's name where a title is empty. This leaves the title bar blank, with a title
/// that draws nothing: window lists would call a window without one untitled.
void hideTitle(const QWidget& window)
{
    if (!x11::connection())
        return;
    constexpr std::string_view noBreakSpace = "\u00a0";
    const auto id = static_cast<xcb_window_t>(window.winId());
    for (const auto name : {x11::atom("_NET_WM_NAME"), xcb_atom_t{XCB_ATOM_WM_NAME}})
        xcb_change_property(x11::connection(), XCB_PROP_MODE_REPLACE, id, name, x11::atom("UTF8_STRING"), 8,
            noBreakSpace.size(), noBreakSpace.data());
}

/// Drawn here: what lets Qt read such a picture by itself is a plug-in that may not be installed. The small ones have
/// drawings of their own.
QIcon applicationIcon()
{
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        const auto own = QStringLiteral(":/icons/org.velto.Velto-%1.svg").arg(side);
        QSvgRenderer picture(QFile::exists(own) ? own : QStringLiteral(":/icons/org.velto.Velto.svg"));
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        picture.render(&painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

QtWindow::QtWindow(const Screens& screens, const QString& title, const QString& name, std::unique_ptr<QWidget> view) :
    m_screens(screens),
    m_dialog(new QDialog(nullptr,
        Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
            | Qt::WindowStaysOnTopHint)),
    m_size(view->sizeHint())
{
    m_dialog->setWindowTitle(title);
    m_dialog->setAccessibleName(name);
    m_dialog->setWindowIcon(applicationIcon());
    m_dialog->setAttribute(Qt::WA_QuitOnClose, false);
    auto* layout = new QVBoxLayout(m_dialog);
    layout->setContentsMargins({});
    layout->addWidget(view.release());
    m_dialog->installEventFilter(this);
    connect(qGuiApp, &QCoreApplication::aboutToQuit, m_dialog, [dialog = m_dialog.data()] { delete dialog; });
}

QtWindow::~QtWindow()
{
    if (!m_dialog)
        return;
    if (m_dialog->isVisible())
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    else
        delete m_dialog;
}

void QtWindow::makeKeyAndOrderFront()
{
    if (!m_dialog)
        return;
    if (!m_dialog->isVisible()) {
        place();
        if (m_dialog->windowTitle().isEmpty())
            hideTitle(*m_dialog);
    }
    m_dialog->show();
    bringToFront(*m_dialog->windowHandle());
}

bool QtWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide)
        m_position = m_dialog->pos();
    return QObject::eventFilter(watched, event);
}

void QtWindow::place()
{
    auto screen = m_position ? m_screens.screenOf(rectFromQt(QRect(*m_position, m_size))) : std::nullopt;
    if (!screen) {
        m_position.reset();
        screen = m_screens.mainScreen();
    }
    if (!screen)
        return;
    const auto area = rectToQt(screen->visibleFrame).toAlignedRect();
    const auto size = m_size.boundedTo(area.size() - QSize(0, titleBarAllowance));
    m_dialog->setFixedSize(size);
    if (!m_position) {
        const auto around = area.size() - size - QSize(0, titleBarAllowance);
        m_position = area.topLeft() + QPoint(around.width(), around.height()) / 2;
    }
    m_dialog->move(*m_position);
}

} // namespace velto
