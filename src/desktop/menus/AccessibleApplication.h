// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleObject>

namespace velto {

/// The program as assistive technology sees it: its windows, and the menu that is open.
///
/// The toolkit lists pop-ups under the widget that they belong to. A menu of the panel bar belongs to none.
class AccessibleApplication final : public QAccessibleApplication {
public:
    /// Takes the place of the toolkit's. Needed once, before anybody has asked for the tree.
    static void install();

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
};

} // namespace velto
