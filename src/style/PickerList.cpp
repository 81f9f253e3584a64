// SPDX-License-Identifier: MIT
#include "style/PickerList.h"

#include "style/Colors.h"
#include "style/ContinuousRect.h"
#include "style/Drawing.h"
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

constexpr int padding = 5;
constexpr double cornerRadius = 10;
constexpr double highlightRadius = 6;
constexpr double checkWidth = 24;
constexpr double textMargin = 8;

void drawCheckMark(QPainter& painter, QPointF center, const QColor& color)
{
    painter.setPen(QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{center + QPointF(-4, 0.5), center + QPointF(-1.3, 3.2), center + QPointF(4, -3.5)});
}

class RowDelegate final : public QStyledItemDelegate {
public:
    RowDelegate(PickerList& list, const QComboBox& picker) : QStyledItemDelegate(&list), m_list(list), m_picker(picker)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override
    {
        const double width = checkWidth + lineWidth(m_list, index.data().toString()) + textMargin;
        return {static_cast<int>(width), m_list.fontMetrics().height() + 10};
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
            drawBezel(*painter, row, highlightRadius, color(ColorName::accent, m_list));
            text = Qt::white;
        }
        if (index.row() == m_picker.currentIndex())
            drawCheckMark(*painter,
                {isRightToLeft ? row.right() - checkWidth / 2 : row.left() + checkWidth / 2, row.center().y()}, text);
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
            drawCard();
            return true;
        }
        if (event->type() == QEvent::Show) {
            // Newer versions of Qt leave the highlight where it was when the list was left.
            setCurrentIndex(model()->index(m_picker.currentIndex(), 0));
            placeCard();
            cutCard();
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

void PickerList::drawCard()
{
    const auto theme = themeOf(palette());
    const auto label = color(ColorName::label, theme);
    auto background = color(ColorName::windowBackground, theme);
    // In the dark a card over another one is told by its face.
    if (theme == Theme::dark)
        background = mixed(background, label, 0.05);
    QPainter painter(m_card);
    if (!m_card->mask().isEmpty())
        painter.fillRect(m_card->rect(), background);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBezel(painter, m_card->rect(), cornerRadius, background, color(ColorName::controlOutline, theme));
}

void PickerList::cutCard()
{
    if (m_picker.window()->mask().isEmpty())
        m_card->clearMask();
    else
        m_card->setMask(QRegion(continuousRoundedRect(m_card->rect(), cornerRadius).toFillPolygon().toPolygon()));
}

} // namespace velto
