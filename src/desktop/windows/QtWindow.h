// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Window.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSize>

#include <memory>
#include <optional>

class QDialog;
class QString;
class QWidget;

namespace velto {

class Screens;

/// A window above ordinary ones that is as large as its view asks for, less where the screen is smaller.
///
/// It can be moved and closed, also with Escape, but not resized or minimised. It first appears in the middle of the
/// main screen, afterwards where it was left. Main thread only.
class QtWindow final : public QObject, public Window {
    Q_OBJECT

public:
    /// `screens` must outlive this. Shows no text in its title bar when `title` is empty; `name` is what
    /// assistive technology calls it.
    QtWindow(const Screens& screens, const QString& title, const QString& name, std::unique_ptr<QWidget> view);
    ~QtWindow() override;

    void makeKeyAndOrderFront() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    const Screens& m_screens;
    QPointer<QDialog> m_dialog;       ///< Null once the application has ended.
    QSize m_size;                     ///< Asked for by the view.
    std::optional<QPoint> m_position; ///< Of the frame, where it was left. Absent before it is first shown.
};

} // namespace velto
