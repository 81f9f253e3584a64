// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QRect>
#include <QString>

class QWidget;

namespace velto {

/// Has sway put a window where it is wanted. Sway puts each into the middle when it comes and whenever it changes, and
/// is asked for another place by a socket of its own only. No effect on other desktops.
class SwayPlacement final : public QObject {
public:
    /// `window` must outlive this.
    explicit SwayPlacement(QWidget& window);
    ~SwayPlacement() override;

    /// At the top of the usable area, which sway alone knows, as far to the right as `area`.
    void hangFromTop(const QRect& area);
    /// At the top left corner of `area`.
    void standAt(const QRect& area);
    /// Before each showing. What sway does to the window later, such as for a person who moves it, is left alone.
    void insist();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void want(const QString& place);
    void ask();

    QWidget& m_window;
    int m_socket = -1;
    QString m_wish;
    QDeadlineTimer m_patience;
    int m_asked = 0;
};

} // namespace velto
