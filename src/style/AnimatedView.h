// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QWidget>

class QAccessibleInterface;

namespace velto {

class Motion;

/// A view that draws itself and moves from what the user has seen of it to what it shows next.
///
/// It tells assistive technology what it shows when asked, and only then.
class AnimatedView : public QWidget {
    Q_OBJECT

public:
    AnimatedView();

    /// The text that is shown, or what stands for it.
    [[nodiscard]] virtual QString spokenText() const = 0;
    [[nodiscard]] virtual QAccessible::Role spokenRole() const { return QAccessible::StaticText; }
    /// That text in that role, unless overridden.
    [[nodiscard]] virtual QAccessibleInterface* makeAccessible();

    bool event(QEvent* event) override;

protected:
    /// Runs `motion`, a child of this, from its start. Goes to its end at once when nobody has seen
    /// what it starts from, or motion is not wanted.
    void run(Motion& motion);

    /// It has been painted since it was shown.
    [[nodiscard]] bool isSeen() const { return m_isSeen; }

private:
    bool m_isSeen = false;
};

} // namespace velto
