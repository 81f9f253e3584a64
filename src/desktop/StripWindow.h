// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Application.h"

#include <QFont>
#include <QWidget>

#include <functional>

namespace velto {

/// The time in a small window of its own, for desktops without a place for status items.
///
/// Stands at the top right of the main screen's usable area, above other windows, never takes the
/// focus, and is in no task bar. Main thread only.
class StripWindow : public QWidget {
    Q_OBJECT

public:
    using ClickHandler = std::function<void(ClickEvent::Kind kind, bool control)>;

    explicit StripWindow(ClickHandler onClick);

    void setText(const QString& text);
    [[nodiscard]] const QString& text() const { return m_text; }
    void setTextFont(const QFont& font);
    void setAppearsDisabled(bool disabled);

    [[nodiscard]] QSize sizeHint() const override;

    /// Acts as if the mouse had done it.
    void click(ClickEvent::Kind kind, bool control);

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void followScreen();
    void place();
    [[nodiscard]] double digitWidth() const;

    ClickHandler m_onClick;
    QString m_text;
    QFont m_font;
    bool m_appearsDisabled = false;
};

} // namespace velto
