// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

class QBoxLayout;

namespace velto {

/// The usage notes on one page. Where there is too little room, its sections move closer together; if that is not
/// enough, it scrolls.
class HelpView final : public QScrollArea {
    Q_OBJECT

public:
    explicit HelpView(QSize size);

    [[nodiscard]] QSize sizeHint() const override { return m_size; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();

    QSize m_size;
    QBoxLayout* m_page = nullptr;
};

} // namespace velto
