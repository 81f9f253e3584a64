// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace velto {

class PickerList;

/// A button that shows what is chosen and opens the list of choices. The wheel is left to what
/// scrolls around it.
class PopUpPicker : public QComboBox {
    Q_OBJECT

public:
    /// The title is hidden: it describes the picker to assistive technology, whose name for it is what is chosen.
    explicit PopUpPicker(const QString& title);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    PickerList* m_list = nullptr;
};

} // namespace velto
