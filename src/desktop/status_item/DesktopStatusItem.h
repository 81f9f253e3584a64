// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/menus/PopUpMenu.h"
#include "desktop/status_item/BarColor.h"
#include "desktop/status_item/StatusHost.h"
#include "platform/Application.h"
#include "platform/StatusItem.h"
#include "style/ClockGlyphs.h"

#include <QFont>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace velto {

class ClickGesture;
class FloatingWindow;
class SessionBus;
class StripWindow;

/// The program's status item, in the form that this desktop offers: an entry in its panel bar, or else a small window.
///
/// The window appears at the start if nobody takes items, and later when the bus has gone or there has been no host for
/// two seconds. It goes when a host appears. Silent and idle while nothing changes. Main thread only.
class DesktopStatusItem final : public QObject, public StatusItem, private StatusItemButton {
    Q_OBJECT

public:
    /// Runs the given work with the click as the application's current event.
    using Dispatcher = std::function<void(ClickEvent, const std::function<void()>&)>;

    /// `gesture` and `bus` must outlive this.
    DesktopStatusItem(ClickGesture& gesture, Dispatcher dispatch, SessionBus& bus);
    ~DesktopStatusItem() override;

    [[nodiscard]] StatusItemButton* button() override { return this; }
    void setMenu(std::shared_ptr<Menu> menu) override;
    void menuDidChange() override;
    void popUpMenu() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct OnBus;

    void setFont(double points) override;
    void setToolTip(const std::string& text) override;
    void setTitle(const std::string& title) override;
    void setAppearsDisabled(bool disabled) override;
    void setAction(std::function<void()> action) override;
    [[nodiscard]] std::optional<Rect> frame() const override;

    void enterBus();
    void leaveBus();
    [[nodiscard]] bool hasHost() const;
    void hostChanged();
    void showStrip();
    [[nodiscard]] QWindow* keyboardForMenu();
    void drawPicture();
    [[nodiscard]] QColor barColor() const;
    void clickedInBar(ClickEvent::Kind kind, QPoint claimed);
    void clicked(ClickEvent click);
    [[nodiscard]] std::optional<QRect> anchor() const;
    [[nodiscard]] std::shared_ptr<MenuItem> panelItem();

    ClickGesture& m_gesture;
    Dispatcher m_dispatch;
    std::function<void()> m_action;
    SessionBus& m_bus;
    std::unique_ptr<OnBus> m_onBus; ///< Null while there is no bus.
    std::shared_ptr<Menu> m_menu;
    PopUpMenu m_popUpMenu;
    std::unique_ptr<FloatingWindow> m_menuKeyboard; ///< Unseen; has the keyboard for the open menu.
    std::unique_ptr<StripWindow> m_strip;           ///< Null unless it is on show.
    QTimer m_stripDelay;

    StatusHostTraits m_traits;
    BarColor m_barColor;
    QString m_title;
    QString m_toolTip;
    QFont m_font;
    std::optional<ClockGlyphs> m_glyphs; ///< Of `m_font`, for the shape that the host shows.
    bool m_appearsDisabled = false;
    std::optional<QRect> m_lastAnchor; ///< In Qt's coordinates.
};

} // namespace velto
