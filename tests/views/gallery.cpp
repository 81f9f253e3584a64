// SPDX-License-Identifier: MIT
// Draws every view in every form into pictures: velto_gallery FOLDER. The scale is QT_SCALE_FACTOR.

#include "desktop/session/Language.h"
#include "help_about/AboutView.h"
#include "help_about/HelpView.h"
#include "panel/PanelContainerView.h"
#include "settings_form/SettingsSheet.h"
#include "style/Button.h"
#include "style/CardMenu.h"
#include "style/Colors.h"
#include "style/Motion.h"
#include "style/PopUpPicker.h"
#include "style/Slider.h"
#include "style/Stack.h"
#include "style/SymbolView.h"
#include "style/Symbols.h"
#include "style/TextField.h"
#include "style/TextLabel.h"
#include "style/ToggleSwitch.h"
#include "support/FakeBundle.h"
#include "support/FakeCalendar.h"
#include "support/FakeWorkspace.h"
#include "support/World.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

namespace velto {

namespace {

class Gallery {
public:
    explicit Gallery(QString folder) : m_folder(std::move(folder)) { QDir().mkpath(m_folder); }

    void drawAll()
    {
        card("fresh", 25, 5, {});
        card("running", 25, 5, [&](World& world) {
            world.timer().start();
            world.tick(547);
        });
        for (const auto& [name, elapsed] : {std::pair{"one-first", 450}, std::pair{"one-last", 9}})
            card(name, 25, 5, [&, past = elapsed](World& world) {
                world.timer().start();
                world.tick(past);
            });
        card("paused", 25, 5, [&](World& world) {
            world.timer().start();
            world.tick(1111);
            world.timer().pause();
        });
        card("break", 25, 5, [&](World& world) {
            world.timer().switchToPhase(PomodoroPhase::breakTime);
            world.timer().start();
            world.tick(72);
        });
        card("rolling", 20, 5, {}, [&](World& world) {
            world.timer().start();
            world.tick(1);
        });
        card("fading", 25, 5, {}, [&](World& world) {
            world.timer().switchToPhase(PomodoroPhase::breakTime);
            world.runLoop.runTurns();
        });
        card("end", 25, 5, [&](World& world) {
            world.timer().start();
            world.tick(1500);
        });
        card("hundred", 100, 5, {});
        card("thousand", 1000, 1000, [&](World& world) {
            world.timer().start();
            world.tick(1);
        });
        card("endless", 123456789, 987654321, {});
        controls();
        windows();
        menu();
    }

private:
    using Arrangement = std::function<void(World&)>;

    /// `move` happens before the eyes of the user and is halfway in the picture.
    void card(const QString& name, std::int64_t focusMinutes, std::int64_t breakMinutes, const Arrangement& arrange,
        const Arrangement& move = {})
    {
        World world;
        world.settings.focusMinutes.set(focusMinutes);
        world.settings.breakMinutes.set(breakMinutes);
        FakeBundle bundle;
        PanelContainerView view{world.timer(), world.settings, {360, 420}, world.runLoop, bundle, {}};
        if (arrange)
            arrange(world);
        view.show();
        if (move) {
            view.grab();
            move(world);
            for (auto* motion : view.findChildren<Motion*>()) {
                if (motion->state() != QAbstractAnimation::Running)
                    continue;
                motion->setCurrentTime(Motion::usualDuration / 2);
                motion->pause();
            }
        }
        save(view, "card-" + name);
    }

    void controls()
    {
        QWidget view;
        auto* toggle = new ToggleSwitch("Enable music during focus");
        auto* off = new ToggleSwitch("Auto-Transition");
        auto* slider = new Slider(25, 120);
        auto* picker = new PopUpPicker("Preset");
        auto* play = new Button(ButtonKind::borderless, {}, "play.circle.fill");
        auto* disabledPlay = new Button(ButtonKind::borderless, {}, "play.circle.fill");
        auto* field = new TextField("Custom URL");
        auto* number = new TextField;
        auto* apply = new Button(ButtonKind::prominent, "Apply");
        auto* disabled = new Button(ButtonKind::prominent, "Apply");
        auto* cancel = new Button(ButtonKind::bordered, "Cancel");
        toggle->setChecked(true);
        slider->setValue(52);
        picker->addItems({"Lo-Fi", "Deep House", "Custom URL"});
        picker->setFixedWidth(140);
        number->setFixedWidth(50);
        number->setText("25");
        number->setAlignment(Qt::AlignCenter);
        disabled->setEnabled(false);
        disabledPlay->setEnabled(false);
        view.setLayout(column({.spacing = 14, .padding = {24, 24, 24, 24}}, new TextLabel("Title", TextStyle::title),
            new TextLabel("Durations", TextStyle::headline), toggle, off, slider, row({}, picker, play, disabledPlay),
            field, row({}, number, new TextLabel("minutes", TextStyle::body, ColorName::secondaryLabel)),
            new TextLabel("Automatically start the next phase when timer reaches 0", TextStyle::footnote,
                ColorName::secondaryLabel),
            new TextLabel(
                "\u00a9 2026 The authors. All rights reserved.", TextStyle::footnote, ColorName::tertiaryLabel),
            row({.spacing = 12}, cancel, apply, disabled)));
        slider->setFixedWidth(300);
        field->setFixedWidth(300);
        view.show();
        view.activateWindow();
        QApplication::processEvents();
        view.setAttribute(Qt::WA_KeyboardFocusChange);
        save(view, "controls");
        for (QWidget* focused : std::initializer_list<QWidget*>{toggle, slider, picker, play, field, apply, cancel}) {
            focused->setFocus(Qt::TabFocusReason);
            save(view, QStringLiteral("controls-focus-%1").arg(m_focusPictures++));
        }
        picker->showPopup();
        save(*picker->view()->window(), "popup");
    }

    void windows()
    {
        World world;
        FakeBundle bundle;
        FakeCalendar calendar;
        FakeWorkspace workspace;
        world.settings.enableFocusMusic.set(true);
        world.settings.countdownSound.set(SoundOption::none);
        SettingsSheet form{world.settings, world.timer(), world.runLoop, [] {}};
        form.resize(form.sizeHint());
        form.show();
        save(form, "form");
        auto* bar = form.findChild<QScrollArea*>()->verticalScrollBar();
        bar->setValue(bar->maximum());
        save(form, "form-end");
        HelpView help{{600, 800}};
        help.resize(help.sizeHint());
        help.show();
        save(help, "help");
        help.resize(600, 600);
        save(help, "help-low");
        bundle.values = {{"CFBundleShortVersionString", "1.0.0"}, {"CFBundleVersion", "1"}};
        AboutView about{{640, 240}, {"The velto authors", {}, {}, {}}, bundle, calendar, workspace, world.runLoop};
        about.resize(about.sizeHint());
        about.show();
        save(about, "about");
    }

    void menu()
    {
        CardMenu menu(false);
        menu.addAction("Start Focus");
        menu.addAction("Reset Focus")->setEnabled(false);
        menu.addSeparator();
        auto* submenu = menu.makeSubmenu();
        submenu->setTitle("Focus Duration");
        menu.addMenu(submenu);
        for (const auto* title : {"15 minutes", "25 minutes", "90 minutes"}) {
            auto* action = submenu->addAction(title);
            action->setCheckable(true);
            action->setChecked(title == QStringLiteral("25 minutes"));
        }
        auto* automatic = menu.addAction("Auto-Transition");
        automatic->setCheckable(true);
        automatic->setChecked(true);
        menu.addSeparator();
        menu.addAction(symbolIcon("gearshape"), "Settings…");
        menu.addAction(symbolIcon("questionmark.circle"), "How to Use");
        menu.addSeparator();
        menu.addAction("Quit");
        menu.popup({});
        menu.setActiveAction(submenu->menuAction());
        save(menu, "menu");
        submenu->popup({});
        save(*submenu, "submenu");
    }

    void save(QWidget& view, const QString& name)
    {
        for (const auto theme : {Theme::light, Theme::dark, Theme::lightHighContrast, Theme::darkHighContrast}) {
            QApplication::setPalette(paletteFor(theme));
            QApplication::processEvents();
            QImage image(
                view.size() * view.devicePixelRatio() + QSize(48, 48) * view.devicePixelRatio(), QImage::Format_ARGB32);
            image.setDevicePixelRatio(view.devicePixelRatio());
            const bool isDark = theme == Theme::dark || theme == Theme::darkHighContrast;
            image.fill(isDark ? QColor(0x12, 0x16, 0x1c) : QColor(0xb8, 0xc6, 0xd2));
            QPainter painter(&image);
            view.render(&painter, {24, 24}, {},
                QWidget::DrawChildren
                    | ((view.inherits("velto::PanelContainerView") || view.inherits("velto::SettingsSheet")
                           || view.inherits("velto::CardMenu"))
                            ? QWidget::RenderFlags()
                            : QWidget::DrawWindowBackground));
            painter.end();
            static const char* const suffixes[] = {"light", "dark", "light-contrast", "dark-contrast"};
            image.save(QStringLiteral("%1/%2-%3@%4x.png")
                           .arg(m_folder, name, suffixes[static_cast<int>(theme)])
                           .arg(view.devicePixelRatio()));
        }
    }

    QString m_folder;
    int m_focusPictures = 0;
};

} // namespace

} // namespace velto

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    velto::speak({qEnvironmentVariable("VELTO_LANGUAGE", "en")});
    QApplication::setStyle("Fusion");
    QApplication::setEffectEnabled(Qt::UI_General, true);
    QFont font = QApplication::font();
    font.setFamily(qEnvironmentVariable("VELTO_GALLERY_FONT", font.family()));
    font.setPointSizeF(qEnvironmentVariable("VELTO_GALLERY_POINTS", "10").toDouble());
    QApplication::setFont(font);
    velto::Gallery(argc > 1 ? argv[1] : "gallery").drawAll();
}
