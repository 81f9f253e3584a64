// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace velto {

/// A menu on a card: what is on has a check mark; symbols stand where the marks do.
class CardMenu final : public QMenu {
    Q_OBJECT

public:
    /// With `isCut` the card does without translucent pixels.
    explicit CardMenu(bool isCut, QWidget* parent = nullptr);

    /// A submenu of the same kind, which this owns.
    [[nodiscard]] CardMenu* makeSubmenu() { return new CardMenu(m_isCut, this); }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    bool m_isCut;
};

} // namespace velto
