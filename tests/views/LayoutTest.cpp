// SPDX-License-Identifier: MIT
// Whether text finds its room, with whichever font the environment has: CTest runs these with each font that desktops
// use.

#include "help_about/AboutView.h"
#include "help_about/HelpView.h"
#include "style/Button.h"
#include "style/CardMenu.h"
#include "style/Colors.h"
#include "support/FakeCalendar.h"
#include "support/FakeWorkspace.h"
#include "views/PanelContainerViewFixture.h"
#include "views/SettingsSheetFixture.h"
#include "views/TextRecorder.h"

#include <QAbstractItemView>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace velto {

namespace {

std::string written(const QRectF& rect)
{
    return (testing::Message() << rect.x() << ", " << rect.y() << " " << rect.width() << " x " << rect.height())
        .GetString();
}

/// The views in every scheme and every size of the desktop's text.
class LayoutTest : public testing::Test, protected World {
protected:
    ~LayoutTest() override
    {
        QApplication::setFont(m_font);
        QApplication::setPalette(m_palette);
    }

    template <class Check>
    void everywhere(Check check)
    {
        for (const auto theme : {Theme::light, Theme::dark}) {
            for (const double scale : {1.0, 1.1, 1.25}) {
                SCOPED_TRACE(testing::Message() << "theme " << static_cast<int>(theme) << ", scale " << scale);
                QApplication::setPalette(paletteFor(theme));
                auto font = m_font;
                font.setPointSizeF(10 * scale);
                QApplication::setFont(font);
                check();
            }
        }
    }

    /// As a user would see it, in `size`.
    static void show(QWidget& view, QSize size)
    {
        view.resize(size);
        view.show();
        // One layout asks for the next, from the inside out.
        for (int depth = 0; depth < 8; ++depth)
            QCoreApplication::processEvents();
    }

    static void show(QWidget& view) { show(view, view.sizeHint()); }

    static bool isEnglish() { return qEnvironmentVariable("VELTO_LANGUAGE", "en") == "en"; }
    static bool isPseudo() { return qEnvironmentVariable("VELTO_LANGUAGE") == "eo"; }

    /// Every text of `view` is drawn whole, in its room, and none over another.
    static void expectRoomForText(QWidget& view)
    {
        // Where scripts join their letters, the outlines are only about as wide as what is drawn.
        const double tolerance = view.layoutDirection() == Qt::RightToLeft ? 1 : 0.5;
        const auto drawn = drawnTexts(view);
        QString everything;
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            const auto& text = drawn[i].text;
            const auto& ink = drawn[i].ink;
            const auto& room = drawn[i].room;
            everything += text;
            if (ink.isEmpty())
                continue;
            EXPECT_TRUE(room.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(ink))
                << text.toStdString() << " is cut: " << written(ink) << " in " << written(room);
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(ink.intersects(drawn[j].ink))
                    << text.toStdString() << " is drawn over " << drawn[j].text.toStdString() << ": " << written(ink)
                    << " and " << written(drawn[j].ink);
        }
        static const QRegularExpression blank(QStringLiteral("\\s"));
        static const QRegularExpression mark(
            QStringLiteral("[^\\w\\x{64b}-\\x{652}]+"), QRegularExpression::UseUnicodePropertiesOption);
        everything.remove(blank);
        for (const auto* widget : view.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->window() != view.window())
                continue;
            if (const auto* label = qobject_cast<const QLabel*>(widget)) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
            } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
                // Those of the card share its width; what is beside their text is spare in other languages.
                EXPECT_GE(button->width(), button->sizeHint().width() - (isEnglish() ? 0 : 16))
                    << button->text().toStdString();
                EXPECT_GE(button->height(), button->sizeHint().height()) << button->text().toStdString();
            }
        }
        for (const auto& text : textsOf(view))
            // Arabic is drawn in pieces, from left to right.
            for (auto& piece : view.layoutDirection() == Qt::RightToLeft ? text.split(mark) : QStringList(text))
                EXPECT_TRUE(everything.contains(piece.remove(blank))) << text.toStdString() << " is not whole";
    }

    FakeBundle bundle;

private:
    /// What it should show, by its widgets.
    static QStringList textsOf(const QWidget& view)
    {
        QStringList texts;
        for (const auto* widget : view.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->window() != view.window())
                continue;
            if (const auto* label = qobject_cast<const QLabel*>(widget))
                texts += label->text();
            else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
                texts += button->text();
            else if (const auto* picker = qobject_cast<const QComboBox*>(widget))
                texts += picker->currentText();
            else if (const auto* field = qobject_cast<const QLineEdit*>(widget))
                texts += field->text();
        }
        return texts;
    }

    QFont m_font = QApplication::font();
    QPalette m_palette = QApplication::palette();
};

TEST_F(LayoutTest, TheFontIsTheOneThatWasAskedFor)
{
    const auto wanted = qEnvironmentVariable("VELTO_FONT", "Inter");
    EXPECT_EQ(QFontInfo(textFont(TextStyle::body)).family(), wanted);
}

TEST_F(LayoutTest, TheCardHoldsItsText)
{
    everywhere([this] {
        for (const std::int64_t minutes : {1, 25, 100, 999}) {
            m_timer.reset();
            timer().updateDurations(minutes, minutes);
            PanelContainerView view{timer(), settings, {360, 420}, runLoop, bundle, {}};
            const QRect inside = QRect(0, 0, 360, 420).adjusted(20, 20, -20, -20);
            for (const auto& step : std::vector<std::function<void()>>{[] {}, [&] { timer().start(); },
                     [&] { timer().pause(); }, [&] { timer().switchToPhase(PomodoroPhase::breakTime); }}) {
                step();
                runLoop.runTurns();
                show(view, view.size());

                expectRoomForText(view);
                const auto& time = *view.findChild<RollingTime*>();
                EXPECT_LE(time.textWidth(), time.width());
                for (const auto* child : view.findChildren<QWidget*>()) {
                    if (!child->isVisible())
                        continue;
                    EXPECT_TRUE(inside.contains(QRect(child->mapTo(&view, QPoint()), child->size())))
                        << child->metaObject()->className();
                }
            }
        }
    });
}

TEST_F(LayoutTest, TheFormHoldsItsText)
{
    everywhere([this] {
        settings.focusMinutes.set(1440);
        for (std::size_t preset = 0; preset < allMusicPresets.size(); preset += 2) {
            settings.focusMusicPreset.set(allMusicPresets.at(preset));
            settings.breakMusicPreset.set(allMusicPresets.at((preset + 1) % allMusicPresets.size()));
            settings.enableFocusMusic.set(preset > 0);
            settings.enableBreakMusic.set(true);
            SettingsSheet view{settings, timer(), runLoop, [] {}};
            show(view);
            const auto& page = *view.findChild<QScrollArea*>();
            EXPECT_LE(page.widget()->minimumSizeHint().width(), page.viewport()->width());
            // All of the page, which otherwise scrolls.
            show(view, {500, 1600});

            expectRoomForText(view);
        }
    });
}

TEST_F(LayoutTest, TheListsOfTheFormHoldTheirText)
{
    everywhere([this] {
        settings.enableFocusMusic.set(true);
        SettingsSheet view{settings, timer(), runLoop, [] {}};
        show(view);
        for (auto* picker : view.findChildren<PopUpPicker*>()) {
            if (!picker->isVisible())
                continue;
            picker->showPopup();
            auto& list = *picker->view()->window();
            // However small the screen, without scrolling.
            show(list, {list.width(), 1000});

            expectRoomForText(list);
            QString shown;
            for (const auto& text : drawnTexts(list))
                shown += text.text;
            for (int i = 0; i < picker->count(); ++i)
                EXPECT_TRUE(shown.contains(picker->itemText(i))) << picker->itemText(i).toStdString();
            picker->hidePopup();
        }
    });
}

TEST_F(LayoutTest, AMenuHoldsItsText)
{
    everywhere([] {
        CardMenu menu(false);
        const QStringList titles{"Start Focus", "Auto-Transition", "90m focus / 15m break", "Edit Custom URL…"};
        for (const auto& title : titles)
            menu.addAction(title);
        auto* separator = menu.addSeparator();
        menu.addMenu(menu.makeSubmenu())->setText("Focus Duration");
        show(menu);

        expectRoomForText(menu);
        QString shown;
        for (const auto& text : drawnTexts(menu))
            shown += text.text;
        QString expected = titles.join("") + "Focus Duration";
        if (menu.layoutDirection() == Qt::RightToLeft) { // English is drawn in pieces there, in any order
            std::ranges::sort(shown);
            std::ranges::sort(expected);
        }
        EXPECT_EQ(shown, expected);
        EXPECT_GT(menu.actionGeometry(separator).height(), 4);
    });
}

TEST_F(LayoutTest, HelpHoldsItsTextWithoutScrolling)
{
    everywhere([] {
        HelpView view{QSize(600, 800)};
        show(view);
        // A language that needs more room may scroll: a larger text does, and so does one of 40 % more letters.
        if (isEnglish() || (!isPseudo() && textScale(QApplication::font()) == 1))
            EXPECT_FALSE(view.verticalScrollBar()->isVisible());
        else
            show(view, {600, 1200});

        expectRoomForText(view);
    });
}

TEST_F(LayoutTest, AboutHoldsItsText)
{
    FakeCalendar calendar;
    FakeWorkspace workspace;
    everywhere([&] {
        bundle.values = {{"CFBundleShortVersionString", "1.2"}, {"CFBundleVersion", "34"}};
        AboutView view{QSize(640, 240), {"The velto authors", {}, {}, {}}, bundle, calendar, workspace, runLoop};
        show(view);

        expectRoomForText(view);
        for (const auto* child : view.findChildren<QWidget*>())
            EXPECT_TRUE(view.rect().adjusted(24, 24, -24, -24).contains(child->geometry()))
                << child->metaObject()->className();
    });
}

} // namespace

} // namespace velto
