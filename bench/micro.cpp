// SPDX-License-Identifier: MIT
// What the rules cost, without drawing: a tick, a refresh of the exported menu, an Apply, with everything attached.
#include "app/VeltoApp.h"
#include "core/TimeText.h"
#include "desktop/menus/DBusMenu.h"
#include "settings_form/SettingsForm.h"
#include "support/World.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <chrono>
#include <memory>
#include <string>

namespace velto {

namespace {

/// A launched program in a world of fakes, with ten hours on its clock.
class Program : private World {
public:
    Program()
    {
        store.values["hasLaunchedBefore"] = true;
        store.values["focusMinutes"] = std::int64_t{600};
        m_app = std::make_unique<VeltoApp>(platform);
        m_app->appDelegate().applicationDidFinishLaunching();
        runLoop.runTurns();
    }

    [[nodiscard]] PomodoroTimer& timer() { return m_app->appDelegate().timerProvider(); }
    [[nodiscard]] AppSettings& settings() { return m_app->appDelegate().settingsProvider(); }
    [[nodiscard]] std::string title() const { return statusItem->button()->title(); }
    [[nodiscard]] std::shared_ptr<Menu> menu() const { return statusItem->menu; }
    void tick() { World::tick(1); }

private:
    std::unique_ptr<VeltoApp> m_app;
};

void tick(benchmark::State& state)
{
    Program program;
    program.timer().start();
    for (auto _ : state) {
        if (program.timer().remainingSeconds() < 60) {
            state.PauseTiming();
            program.timer().reset();
            program.timer().start();
            state.ResumeTiming();
        }
        program.tick();
    }
    if (program.title() != timeText(program.timer().remainingSeconds()))
        state.SkipWithError("the time in the bar does not follow");
}

void refreshOfTheExportedMenu(benchmark::State& state)
{
    const Program program;
    DBusMenu menu(QDBusConnection(QStringLiteral("nobody")), {});
    menu.setMenu(program.menu());
    for (auto _ : state) {
        menu.menuDidChange();
        QApplication::processEvents();
    }
}

void apply(benchmark::State& state)
{
    Program program;
    std::int64_t minutes = 25;
    for (auto _ : state) {
        SettingsForm form(program.settings(), program.timer());
        form.focusMinutes.set(minutes = 51 - minutes);
        form.apply();
    }
}

BENCHMARK(tick)->Unit(benchmark::kMicrosecond);
BENCHMARK(refreshOfTheExportedMenu)->Unit(benchmark::kMicrosecond);
BENCHMARK(apply)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velto

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
