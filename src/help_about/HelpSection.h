// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace velto {

/// One piece of the usage notes: a symbol, a heading and a text that may have several lines.
class HelpSection final : public QWidget {
    Q_OBJECT

public:
    HelpSection(const QString& icon, const QString& title, const QString& description);
};

} // namespace velto
