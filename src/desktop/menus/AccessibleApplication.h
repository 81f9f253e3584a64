// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleObject>

namespace velto {

/// The program as assistive technology sees it: its windows, and the menu that is open.
///
/// Qt lists a pop-up under the widget it belongs to. A menu of the panel bar belongs to none.
class AccessibleApplication final : public QAccessibleApplication {
public:
    /// Replaces Qt's own. To be called once, before anybody asks for the tree.
    static void install();

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
};

} // namespace velto
