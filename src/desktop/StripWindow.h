// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Application.h"

#include <QFont>
#include <QWidget>

#include <functional>
#include <memory>

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

    ~StripWindow() override;

    void setText(const QString& text);
    void setTextFont(const QFont& font);
    void setAppearsDisabled(bool disabled);

protected:
    void showEvent(QShowEvent* event) override;

private:
    class Face;

    void followScreen();
    void place();

    std::unique_ptr<Face> m_face;
};

} // namespace velto
