// SPDX-License-Identifier: MIT
#include "style/PickerList.h"

#include "style/Colors.h"
#include "style/Drawing.h"
#include "style/PopUpCard.h"
#include "style/ScrollBar.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QPainter>
#include <QScreen>
#include <QStyledItemDelegate>

#include <algorithm>
#include <vector>

namespace velto {

namespace {

constexpr int padding = PopUpCard::padding;
constexpr int checkWidth = PopUpCard::checkWidth;
constexpr int textMargin = PopUpCard::textMargin;
/// Most that may be between a list and its picker.
constexpr int gap = 8;

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

QRect onScreen(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

/// What `widget` scrolls with; null when it stands still.
const QAbstractScrollArea* pageOf(const QWidget& widget)
{
    const auto* parent = widget.parentWidget();
    while (parent && !qobject_cast<const QAbstractScrollArea*>(parent))
        parent = parent->parentWidget();
    return static_cast<const QAbstractScrollArea*>(parent);
}

/// Where texts and controls of `page` are seen above, below or behind `card`.
std::vector<QRect> linesOf(const QAbstractScrollArea& page, const QRect& card)
{
    const auto visible = onScreen(*page.viewport());
    std::vector<QRect> lines;
    for (const auto* widget : page.viewport()->findChildren<QWidget*>()) {
        const auto line = onScreen(*widget).intersected(visible);
        const bool isBeside = line.right() < card.left() || line.left() > card.right();
        if (widget->isVisible() && widget->window() == page.window() && !widget->layout() && !line.isEmpty()
            && !isBeside)
            lines.push_back(line);
    }
    return lines;
}

bool cutsAny(const std::vector<QRect>& lines, const QRect& card)
{
    return std::ranges::any_of(lines, [&](const QRect& line) {
        const auto crosses = [&](int y) { return y > line.top() && y < line.bottom(); };
        return crosses(card.top()) || crosses(card.bottom());
    });
}

} // namespace

PickerList::PickerList(QComboBox& picker) : m_picker(picker)
{
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(padding, padding, padding, padding);
    viewport()->setAutoFillBackground(false);
    setVerticalScrollBar(new ScrollBar);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    picker.setView(this);
    picker.setItemDelegate(new RowDelegate(*this, picker));
    m_card = parentWidget();
    m_card->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    m_card->setAttribute(Qt::WA_TranslucentBackground);
    m_card->installEventFilter(this);
    // A list that is higher than the screen has a scroll bar instead of Qt's arrows above and below it.
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollMode(ScrollPerPixel);
    for (auto* arrow : m_card->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (arrow != this)
            arrow->setFixedHeight(0);
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
            scrollTo(currentIndex());
            PopUpCard::cut(*m_card, !m_picker.window()->mask().isEmpty());
        }
    }
    return QListView::eventFilter(watched, event);
}

void PickerList::focusInEvent(QFocusEvent* event)
{
    QListView::focusInEvent(event);
    // Assistive technology hears of the list after this, and then wants to know where in it.
    QMetaObject::invokeMethod(this, &PickerList::tellChoice, Qt::QueuedConnection);
}

void PickerList::tellChoice()
{
    setCurrentIndex(model()->index(m_picker.currentIndex(), 0));
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(currentIndex().row());
    QAccessible::updateAccessibility(&focus);
}

void PickerList::placeCard()
{
    const auto usable = m_picker.screen()->availableGeometry();
    m_card->resize(m_card->width(), std::min(m_card->height(), usable.height()));
    const auto* page = pageOf(m_picker);
    const auto visible = page ? usable.intersected(onScreen(*page->viewport())) : usable;
    const auto& bounds = visible.height() >= m_card->height() ? visible : usable;
    const int lowest = bounds.bottom() + 1 - m_card->height();

    const auto chosen = visualRect(model()->index(m_picker.currentIndex(), 0));
    const int chosenY = viewport()->mapTo(m_card, chosen.center()).y();
    const int wanted = std::clamp(m_picker.mapToGlobal(m_picker.rect().center()).y() - chosenY, bounds.top(), lowest);
    m_card->move(m_card->x(), wanted);
    if (!page)
        return;
    const auto lines = linesOf(*page, m_card->geometry());
    const auto neighborhood = onScreen(m_picker).adjusted(0, -gap, 0, gap);
    for (int shift = 0; shift <= m_card->height(); ++shift) {
        for (const int y : {wanted - shift, wanted + shift}) {
            const QRect card(QPoint(m_card->x(), y), m_card->size());
            if (y >= bounds.top() && y <= lowest && card.intersects(neighborhood) && !cutsAny(lines, card))
                return m_card->move(card.topLeft());
        }
    }
}

} // namespace velto
