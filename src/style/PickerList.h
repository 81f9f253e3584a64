// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

class QComboBox;

namespace velto {

/// The choices of a pop-up picker on a card of their own: a check mark stands at what is chosen, what Return or a
/// click would choose is highlighted. What is chosen lies over the picker, as far as the screen allows.
///
/// The card does without translucent pixels where the picker's window is cut to a shape, too.
class PickerList final : public QListView {
    Q_OBJECT

public:
    /// Becomes the list of `picker`, which owns it.
    explicit PickerList(QComboBox& picker);

    /// Has assistive technology say what is chosen.
    void tellChoice();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void placeCard();

    QComboBox& m_picker;
    QWidget* m_card = nullptr; ///< The window that the picker shows the list in.
};

} // namespace velto
