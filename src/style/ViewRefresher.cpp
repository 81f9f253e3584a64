// SPDX-License-Identifier: MIT
#include "style/ViewRefresher.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace velto {

ViewRefresher::ViewRefresher(QWidget& view, RunLoop& runLoop, std::function<void()> refresh) :
    m_view(view),
    m_runLoop(runLoop),
    m_refresh(std::move(refresh))
{
    view.installEventFilter(this);
}

void ViewRefresher::observe(ObservableObject& object)
{
    m_observations.push_back(object.willChange([this] { changed(); }));
}

bool ViewRefresher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show)
        refreshNow();
    else if (event->type() == QEvent::Hide)
        m_pending.cancel();
    return QObject::eventFilter(watched, event);
}

void ViewRefresher::changed()
{
    if (m_view.isVisible() && !m_pending.isActive())
        m_pending = m_runLoop.nextTurn([this] { refreshNow(); });
}

void ViewRefresher::refreshNow()
{
    m_pending.cancel();
    m_refresh();
}

} // namespace velto
