// SPDX-License-Identifier: MIT
#pragma once

#include "panel/CircularProgressView.h"
#include "panel/PanelContainerView.h"
#include "panel/PhaseTitle.h"
#include "panel/RollingTime.h"
#include "style/Button.h"
#include "style/Colors.h"
#include "style/TextLabel.h"
#include "support/FakeBundle.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <map>
#include <memory>
#include <vector>

namespace velto {

/// Counts what each widget under a view paints.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& root)
    {
        root.installEventFilter(this);
        for (auto* child : root.findChildren<QWidget*>())
            child->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++counts[watched];
        return false;
    }

    std::map<QObject*, int> counts;
};

/// The card with everything that it shows, over a timer in virtual time.
class PanelContainerViewTest : public testing::Test, protected World {
protected:
    PanelContainerViewTest()
    {
        QApplication::setPalette(paletteFor(Theme::light));
        QApplication::setEffectEnabled(Qt::UI_General, true);
        setDesktopFont(10);
    }

    ~PanelContainerViewTest() override
    {
        QAccessible::installUpdateHandler(nullptr);
        accessibility().setActive(false);
        setDesktopFont(10);
    }

    static void setDesktopFont(double points)
    {
        auto font = QApplication::font();
        font.setPointSizeF(points);
        QApplication::setFont(font);
        QApplication::processEvents();
    }

    static QPlatformAccessibility& accessibility()
    {
        return *QGuiApplicationPrivate::platformIntegration()->accessibility();
    }

    void build(std::int64_t focusMinutes = 25, std::int64_t breakMinutes = 5)
    {
        view.reset();
        m_timer.reset();
        settings.focusMinutes.set(focusMinutes);
        settings.breakMinutes.set(breakMinutes);
        view = std::make_unique<PanelContainerView>(timer(), settings, Size{360, 420}, runLoop, bundle, makeSheet);
        view->show();
        view->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
        look();
    }

    /// The user sees the view as it is.
    QImage look()
    {
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        return view->grab().toImage();
    }

    /// Takes everything that moves to a moment of its motion, in milliseconds.
    void moveTo(int moment)
    {
        for (auto* motion : view->findChildren<Motion*>())
            if (motion->state() == QAbstractAnimation::Running)
                motion->setCurrentTime(moment);
    }

    /// The turn of the event loop in which views answer to changes.
    void turn() { runLoop.runTurns(); }

    template <class Child>
    Child& child()
    {
        return *view->findChild<Child*>();
    }

    Button* button(const QString& title)
    {
        for (auto* candidate : view->findChildren<Button*>())
            if (candidate->text() == title)
                return candidate->isVisible() ? candidate : nullptr;
        return nullptr;
    }

    TextLabel* label(const QString& text)
    {
        for (auto* candidate : view->findChildren<TextLabel*>())
            if (candidate->text() == text)
                return candidate;
        return nullptr;
    }

    std::vector<QString> buttonTitles()
    {
        std::vector<QString> titles;
        for (auto* candidate : view->findChildren<Button*>())
            if (candidate->isVisible())
                titles.push_back(candidate->text());
        return titles;
    }

    /// In the card's coordinates.
    QRect frame(const QWidget* widget) { return {widget->mapTo(view.get(), QPoint()), widget->size()}; }
    QRect ringFrame()
    {
        auto& ring = child<CircularProgressView>();
        return ring.contentsRect().translated(ring.mapTo(view.get(), QPoint()));
    }

    QColor pixel(const QImage& image, QPointF point)
    {
        const auto scale = view->devicePixelRatioF();
        return image.pixelColor((point * scale).toPoint());
    }

    FakeBundle bundle;
    SettingsSheetFactory makeSheet;
    std::unique_ptr<PanelContainerView> view;
};

} // namespace velto
