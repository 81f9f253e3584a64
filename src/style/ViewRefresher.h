// SPDX-License-Identifier: MIT
#pragma once

#include "observation/ObservableObject.h"
#include "platform/OncePerTurn.h"

#include <QObject>

#include <functional>
#include <vector>

class QWidget;

namespace velto {

/// Lets a view re-read all it shows: once in the turn after any number of changes while the view is
/// visible, and at once whenever it is about to be shown. While it is hidden nothing is read.
///
/// A member of the view it serves. The run loop must outlive it.
class ViewRefresher : public QObject {
    Q_OBJECT

public:
    ViewRefresher(QWidget& view, RunLoop& runLoop, std::function<void()> refresh);

    /// `object` must outlive this.
    void observe(ObservableObject& object);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_view;
    OncePerTurn m_refresh;
    std::vector<Subscription> m_observations;
};

} // namespace velto
