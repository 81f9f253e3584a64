// SPDX-License-Identifier: MIT
#include "style/AnimatedView.h"

#include "style/Motion.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>

namespace velto {

namespace {

class TextInterface final : public QAccessibleWidget {
public:
    explicit TextInterface(AnimatedView* view) : QAccessibleWidget(view, view->spokenRole()) { }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? static_cast<AnimatedView*>(widget())->spokenText()
                                         : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* view = qobject_cast<AnimatedView*>(object);
    return view ? view->makeAccessible() : nullptr;
}

} // namespace

AnimatedView::AnimatedView()
{
    QAccessible::installFactory(makeInterface);
}

QAccessibleInterface* AnimatedView::makeAccessible()
{
    return new TextInterface(this);
}

bool AnimatedView::event(QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        m_isSeen = true;
    } else if (event->type() == QEvent::Hide) {
        m_isSeen = false;
        for (auto* motion : findChildren<Motion*>(Qt::FindDirectChildrenOnly))
            motion->finish();
    }
    return QWidget::event(event);
}

void AnimatedView::run(Motion& motion)
{
    motion.stop();
    if (m_isSeen && mayAnimate(*this))
        motion.start();
    else
        motion.finish();
}

} // namespace velto
