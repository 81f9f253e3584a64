// SPDX-License-Identifier: MIT
#include "Contrast.h"
#include "SettingsSheetFixture.h"
#include "style/Colors.h"

#include <QAbstractItemView>
#include <QScreen>

#include <algorithm>
#include <string>
#include <vector>

namespace velto {

namespace {

class SettingsSheetLookTest : public SettingsSheetTest {
protected:
    ~SettingsSheetLookTest() override { QApplication::setPalette(m_palette); }

    /// What is on the page, on the screen. What is scrolled away are left out.
    [[nodiscard]] std::vector<QRect> shownOnPage() const
    {
        std::vector<QRect> shown;
        const auto* page = sheet->findChild<QScrollArea*>();
        for (const auto* widget : page->widget()->findChildren<QWidget*>())
            if (widget->isVisible() && widget->window() == sheet.get() && !widget->layout()
                && onScreen(*page->viewport()).contains(onScreen(*widget)))
                shown.push_back(onScreen(*widget));
        return shown;
    }

    static QRect onScreen(const QWidget& widget) { return {widget.mapToGlobal(QPoint()), widget.size()}; }

private:
    QPalette m_palette = QApplication::palette();
};

bool isCut(const QRect& text, const QRect& list)
{
    const bool isBeside = text.right() < list.left() || text.left() > list.right();
    const auto crosses = [&](int edge) { return edge > text.top() && edge < text.bottom(); };
    return !isBeside && (crosses(list.top()) || crosses(list.bottom()));
}

TEST_F(SettingsSheetLookTest, AnOpenListCutsNoLineOfTheFormAndStaysOnItsPage)
{
    settings.enableFocusMusic.set(true);
    settings.enableBreakMusic.set(true);
    open();
    const auto* page = sheet->findChild<QScrollArea*>()->viewport();
    ASSERT_TRUE(sheet->screen()->geometry().contains(onScreen(*page)));
    int lists = 0;
    for (int scrolled = indicator().minimum(); scrolled < indicator().maximum(); scrolled += 37) {
        indicator().setValue(scrolled);
        settle();
        for (auto* picker : sheet->findChildren<PopUpPicker*>()) {
            if (!onScreen(*page).contains(onScreen(*picker)))
                continue;
            for (const int chosen : {0, picker->count() / 2, picker->count() - 1}) {
                picker->setCurrentIndex(chosen);
                settle();
                picker->showPopup();
                const auto list = onScreen(*picker->view()->window());
                const auto where
                    = nameOf(picker).toStdString() + std::to_string(chosen) + " at " + std::to_string(scrolled);

                EXPECT_TRUE(list.top() >= onScreen(*page).top() && list.bottom() <= onScreen(*page).bottom()) << where;
                EXPECT_TRUE(list.adjusted(0, -8, 0, 8).intersects(onScreen(*picker))) << where;
                for (const auto& text : shownOnPage())
                    EXPECT_FALSE(isCut(text, list)) << where << ", " << text.top() << " to " << text.bottom() << " by "
                                                    << list.top() << " to " << list.bottom();
                picker->hidePopup();
                ++lists;
            }
        }
    }
    EXPECT_GT(lists, 50);
}

TEST_F(SettingsSheetLookTest, ThumbListAndWhatIsDisabledAreSeenInBothSchemes)
{
    settings.breakEndSound.set(SoundOption::none);
    settings.enableFocusMusic.set(true);
    for (const auto theme : {Theme::light, Theme::dark}) {
        QApplication::setPalette(paletteFor(theme));
        open();
        const auto background = color(ColorName::windowBackground, theme);

        const auto bar = indicator().grab().toImage();
        EXPECT_GE(contrast(bar.pixelColor(bar.width() / 2, bar.height() / 5), background), 3);

        auto* picker = find<PopUpPicker>("Preset");
        picker->showPopup();
        const auto list = picker->view()->window()->grab().toImage();
        EXPECT_GE(contrast(list.pixelColor(list.width() / 2, 0), background), 3);
        picker->hidePopup();

        const auto play = find<Button>("Play Break End")->grab().toImage();
        double strongest = 1;
        for (int x = 0; x < play.width(); ++x)
            strongest = std::max(strongest, contrast(play.pixelColor(x, play.height() / 2), background));
        EXPECT_GE(strongest, 2);
    }
}

} // namespace

} // namespace velto
