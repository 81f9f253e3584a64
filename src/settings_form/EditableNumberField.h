// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"
#include "settings_form/NumberText.h"
#include "style/TextField.h"

namespace velto {

/// A small box for a whole number of 1 or more. What is typed becomes the number when editing ends; Return ends it.
class EditableNumberField : public TextField {
    Q_OBJECT

public:
    /// `name` is its accessible name. `value` must outlive this.
    EditableNumberField(const QString& name, Published<std::int64_t>& value);

    /// Takes what was typed, or shows the value again.
    void endEditing();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void showText();

    NumberText m_number;
    Subscription m_valueChanges;
};

} // namespace velto
