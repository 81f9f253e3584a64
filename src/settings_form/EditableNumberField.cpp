// SPDX-License-Identifier: MIT
#include "settings_form/EditableNumberField.h"

#include <QKeyEvent>

#include <algorithm>

namespace velto {

namespace {

constexpr int narrowMargin = 1;

} // namespace

EditableNumberField::EditableNumberField(const QString& name, Published<std::int64_t>& value) :
    m_number(value, &QChar::isNumber)
{
    setAccessibleName(name);
    setAlignment(Qt::AlignHCenter);
    // Four digits are whole in the largest text, too.
    setTextMargins(narrowMargin, 0, narrowMargin, 0);

    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_number.setText(text.toStdU32String());
        showText();
    });
    m_valueChanges = value.changes([this](std::int64_t) { showText(); });
}

void EditableNumberField::endEditing()
{
    m_number.endEditing();
    showText();
}

void EditableNumberField::keyPressEvent(QKeyEvent* event)
{
    TextField::keyPressEvent(event);
    // Unless a listener has moved the focus.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && hasFocus())
        clearFocus();
}

void EditableNumberField::focusOutEvent(QFocusEvent* event)
{
    TextField::focusOutEvent(event);
    // The field's own menu is no reason to stop.
    if (event->reason() != Qt::PopupFocusReason)
        endEditing();
}

void EditableNumberField::showText()
{
    const auto wanted = QString::fromStdU32String(m_number.text());
    if (wanted == text())
        return;
    // What was dropped stood before the cursor.
    const auto behindCursor = text().size() - cursorPosition();
    setText(wanted);
    setCursorPosition(static_cast<int>(std::max<qsizetype>(wanted.size() - behindCursor, 0)));
}

} // namespace velto
