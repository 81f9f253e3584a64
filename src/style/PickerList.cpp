// SPDX-License-Identifier: MIT
#include "style/PickerList.h"

#include "style/Colors.h"
#include "style/Drawing.h"
#include "style/PopUpCard.h"
#include "style/ScrollBar.h"

#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QPainter>
#include <QScreen>
#include <QStyledItemDelegate>

#include <algorithm>

namespace velto {

namespace {

constexpr int padding = PopUpCard::padding;
constexpr int checkWidth = PopUpCard::checkWidth;
constexpr int textMargin = PopUpCard::textMargin;

class RowDelegate final : public QStyledItemDelegate {
public:
    RowDelegate(PickerList& list, const QComboBox& picker) : QStyledItemDelegate(&list), m_list(list), m_picker(picker)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override
    {
        return {checkWidth + lineWidth(m_list, index.data().toString()) + textMargin, PopUpCard::rowHeight(m_list)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool isRightToLeft = option.direction == Qt::RightToLeft;
        const QRectF row = option.rect;
        auto text = color(ColorName::label, m_list);

        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setFont(m_list.font());
        if (index == m_list.currentIndex()) {
            PopUpCard::drawHighlight(*painter, row, m_list);
            text = Qt::white;
        }
        if (index.row() == m_picker.currentIndex())
            PopUpCard::drawCheckMark(*painter,
                {isRightToLeft ? row.right() - checkWidth / 2.0 : row.left() + checkWidth / 2.0, row.center().y()},
                text);
        painter->setPen(text);
        drawLine(*painter,
            isRightToLeft ? row.adjusted(textMargin, 0, -checkWidth, 0) : row.adjusted(checkWidth, 0, -textMargin, 0),
            isRightToLeft ? Qt::AlignRight : Qt::AlignLeft, index.data().toString());
        painter->restore();
    }

private:
    const PickerList& m_list;
    const QComboBox& m_picker;
};

} // namespace

PickerList::PickerList(QComboBox& picker) : m_picker(picker)
{
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(padding, padding, padding, padding);
    viewport()->setAutoFillBackground(false);
    setVerticalScrollBar(new ScrollBar(Qt::Vertical));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    picker.setView(this);
    picker.setItemDelegate(new RowDelegate(*this, picker));
    m_card = parentWidget();
    m_card->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    m_card->setAttribute(Qt::WA_TranslucentBackground);
    m_card->installEventFilter(this);
}

bool PickerList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_card) {
        if (event->type() == QEvent::Paint) {
            QPainter painter(m_card);
            PopUpCard::draw(painter, *m_card);
            return true;
        }
        if (event->type() == QEvent::Show) {
            // Newer versions of Qt leave the highlight where it was when the list was left.
            setCurrentIndex(model()->index(m_picker.currentIndex(), 0));
            placeCard();
            PopUpCard::cut(*m_card, !m_picker.window()->mask().isEmpty());
        }
    }
    return QListView::eventFilter(watched, event);
}

void PickerList::placeCard()
{
    const auto chosen = visualRect(model()->index(m_picker.currentIndex(), 0));
    const int chosenY = viewport()->mapTo(m_card, chosen.center()).y();
    const auto usable = m_picker.screen()->availableGeometry();
    m_card->resize(m_card->width(), std::min(m_card->height(), usable.height()));
    const int wanted = m_picker.mapToGlobal(m_picker.rect().center()).y() - chosenY;
    m_card->move(m_card->x(), std::max(std::min(wanted, usable.bottom() + 1 - m_card->height()), usable.top()));
}

} // namespace velto
