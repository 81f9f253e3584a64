// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFileSystemWatcher>
#include <QObject>

#include <optional>

namespace velto {

/// The colour of Plasma's panels as its settings have it: that of the panels' own theme, else that of the applications.
///
/// Main thread only.
class PlasmaPanelColor final : public QObject {
    Q_OBJECT

public:
    PlasmaPanelColor();

    /// Read anew. Absent where the settings leave it open.
    [[nodiscard]] static std::optional<QColor> read();

signals:
    /// The settings, perhaps also the colour.
    void changed();

private:
    QFileSystemWatcher m_settings;
};

} // namespace velto
