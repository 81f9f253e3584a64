// SPDX-License-Identifier: MIT
#include "style/ViewRefresher.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace velto {

ViewRefresher::ViewRefresher(QWidget& view, RunLoop& runLoop, std::function<void()> refresh) :
    m_view(view),
    m_refresh(runLoop, std::move(refresh))
{
    view.installEventFilter(this);
}

void ViewRefresher::observe(ObservableObject& object)
{
    m_observations.push_back(object.willChange([this] {
        if (m_view.isVisible())
            m_refresh.request();
    }));
}

bool ViewRefresher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show)
        m_refresh.runNow();
    else if (event->type() == QEvent::Hide)
        m_refresh.cancel();
    return QObject::eventFilter(watched, event);
}

} // namespace velto
