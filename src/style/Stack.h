// SPDX-License-Identifier: MIT
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QLayout>
#include <QMargins>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace velto {

// Layouts that have the shape of what they draw:
//
//     setLayout(column({.spacing = 12}, title, row({}, label, spacer, toggle), filling(list)));

/// How the children of a stack stand.
struct StackOptions {
    int spacing = 8;                           ///< Between neighbours.
    QMargins padding = {};                     ///< Around all of them.
    Qt::Alignment alignment = Qt::AlignCenter; ///< Across the stack; none lets children fill it.
};

/// Takes all space that is left, in `column` and `row`.
struct Spacer { };
inline constexpr Spacer spacer;

/// A child that is stretched across the stack and shares what is left along it equally with others of its kind.
template <class Child>
struct Filling {
    Child* child;
};

template <class Child>
[[nodiscard]] Filling<Child> filling(Child* child)
{
    return {child};
}

namespace detail {

inline Qt::Alignment across(const QBoxLayout& box, Qt::Alignment alignment)
{
    const bool isColumn = box.direction() == QBoxLayout::TopToBottom;
    return alignment & (isColumn ? Qt::AlignHorizontal_Mask : Qt::AlignVertical_Mask);
}

inline void add(QBoxLayout& box, QWidget* child, Qt::Alignment alignment)
{
    box.addWidget(child, 0, across(box, alignment));
}

inline void add(QBoxLayout& box, QLayout* child, Qt::Alignment alignment)
{
    box.addLayout(child);
    box.setAlignment(child, across(box, alignment));
}

inline void add(QBoxLayout& box, Spacer, Qt::Alignment)
{
    box.addStretch(1);
}

template <class Child>
void add(QBoxLayout& box, Filling<Child> filling, Qt::Alignment)
{
    const int share = box.direction() == QBoxLayout::TopToBottom ? 0 : 1;
    if constexpr (std::is_base_of_v<QLayout, Child>)
        box.addLayout(filling.child, share);
    else
        box.addWidget(filling.child, share);
}

inline void addLayer(QGridLayout& grid, QWidget* child, Qt::Alignment alignment)
{
    grid.addWidget(child, 0, 0, alignment);
}

inline void addLayer(QGridLayout& grid, QLayout* child, Qt::Alignment alignment)
{
    grid.addLayout(child, 0, 0, alignment);
}

template <class... Children>
QBoxLayout* stack(QBoxLayout::Direction direction, const StackOptions& options, Children... children)
{
    auto* box = new QBoxLayout(direction);
    box->setSpacing(options.spacing);
    box->setContentsMargins(options.padding);
    (add(*box, children, options.alignment), ...);
    return box;
}

} // namespace detail

/// Widgets, layouts and spacers, one below the other.
template <class... Children>
[[nodiscard]] QBoxLayout* column(const StackOptions& options, Children... children)
{
    return detail::stack(QBoxLayout::TopToBottom, options, children...);
}

/// Widgets, layouts and spacers, side by side.
template <class... Children>
[[nodiscard]] QBoxLayout* row(const StackOptions& options, Children... children)
{
    return detail::stack(QBoxLayout::LeftToRight, options, children...);
}

/// Widgets and layouts, one over the other; what was created later is in front.
template <class... Children>
[[nodiscard]] QGridLayout* layers(const StackOptions& options, Children... children)
{
    auto* grid = new QGridLayout;
    grid->setContentsMargins(options.padding);
    (detail::addLayer(*grid, children, options.alignment), ...);
    return grid;
}

/// The spacing with which `box` is as high as `room`: `usual` if it is lower, and less where it is higher.
[[nodiscard]] inline int fittingSpacing(const QBoxLayout& box, QSize room, int usual)
{
    int gaps = -1;
    for (int i = 0; i < box.count(); ++i)
        gaps += box.itemAt(i)->isEmpty() ? 0 : 1;
    const double missing = box.totalHeightForWidth(room.width()) - room.height();
    return std::min(usual, box.spacing() - static_cast<int>(std::ceil(missing / std::max(gaps, 1))));
}

} // namespace velto
