// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/windows/FloatingWindow.h"
#include "platform/Application.h"

#include <QFont>

#include <functional>

namespace velto {

/// The time in a small window of its own, for desktops without a place for status items.
///
/// Stands at the top right of the main screen's usable area and never takes the focus. Main thread only.
class StripWindow final : public FloatingWindow {
    Q_OBJECT

public:
    using ClickHandler = std::function<void(ClickEvent::Kind kind, bool control)>;

    explicit StripWindow(ClickHandler onClick);

    void setText(const QString& text);
    void setTextFont(const QFont& font);
    void setAppearsDisabled(bool disabled);

private:
    class Face;

    explicit StripWindow(Face* face);

    void followScreen();
    void place();

    Face* m_face;
};

} // namespace velto
