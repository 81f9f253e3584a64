// SPDX-License-Identifier: MIT
#include "desktop/sound/CanberraSoundLibrary.h"

#include "Recording.h"
#include "Resources.h"
#include "SoundServer.h"
#include "WatchedApplication.h"

#include <gtest/gtest.h>

namespace velto {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// Frequencies that stand out in two of the sounds, and are absent from the other.
constexpr double inTink = 2637;
constexpr double inSubmarine = 460;
constexpr double heard = 0.02;

class CanberraSoundLibraryTest : public testing::Test {
protected:
    void SetUp() override { application.startWatching(); }
    void TearDown() override
    {
        EXPECT_TRUE(application.isNeverHeldUp()) << application.longestTurn().count() << " ms";
        const auto start = Clock::now();
        library.reset();
        EXPECT_LT(Clock::now() - start, 1s);
    }

    /// In a turn of the event loop.
    void play(std::string_view name, int times = 1)
    {
        application.turn([&] {
            for (int i = 0; i < times; ++i)
                library->soundNamed(name)->play();
        });
    }

    SoundServer server;
    WatchedApplication& application = WatchedApplication::instance();
    std::unique_ptr<CanberraSoundLibrary> library = std::make_unique<CanberraSoundLibrary>(VELTO_SOUNDS);
};

TEST_F(CanberraSoundLibraryTest, KnowsExactlyTheFourteenNames)
{
    for (const auto* name : {"Basso", "Blow", "Bottle", "Frog", "Funk", "Glass", "Hero", "Morse", "Ping", "Pop", "Purr",
             "Sosumi", "Submarine", "Tink"})
        EXPECT_TRUE(library->soundNamed(name)) << name;

    using namespace std::string_view_literals;
    for (const auto name : {""sv, "None"sv, "tink"sv, "TINK"sv, "Tink "sv, " Tink"sv, "Tink.wav"sv, "Tin"sv,
             "../sounds/Tink"sv, "./Tink"sv, "Tink\0"sv, "Tink.wav\0"sv, "."sv, "*"sv})
        EXPECT_FALSE(library->soundNamed(name)) << name;
}

TEST_F(CanberraSoundLibraryTest, WithoutSoundsInstalledKnowsNoName)
{
    EXPECT_FALSE(CanberraSoundLibrary("/nowhere").soundNamed("Tink"));
}

TEST_F(CanberraSoundLibraryTest, FindsItsSoundsBesideTheExecutable)
{
    const auto folder = CanberraSoundLibrary::folderOf(QCoreApplication::applicationDirPath().toStdString());

    EXPECT_TRUE(std::filesystem::equivalent(folder, VELTO_SOUNDS));
}

TEST_F(CanberraSoundLibraryTest, TouchesNothingBeforeTheFirstSound)
{
    const auto before = Resources::now();

    CanberraSoundLibrary another(VELTO_SOUNDS);

    EXPECT_EQ(Resources::now().threads, before.threads);
    EXPECT_EQ(Resources::now().handles, before.handles);
}

TEST_F(CanberraSoundLibraryTest, PlaysInTheRoleOfEvents)
{
    server.start();
    Recording recording;

    play("Submarine");

    ASSERT_TRUE(eventually([&] { return recording.amplitude(inSubmarine) > heard; }));
    const auto inputs = server.list("sink-inputs");
    EXPECT_TRUE(inputs.contains("media.role = \"event\"")) << inputs.toStdString();
    EXPECT_TRUE(inputs.contains("application.name = \"velto\"")) << inputs.toStdString();
    EXPECT_TRUE(inputs.contains("application.id = \"org.velto.Velto\"")) << inputs.toStdString();
    EXPECT_LT(recording.amplitude(inTink), heard / 4);
}

TEST_F(CanberraSoundLibraryTest, SoundsOverlap)
{
    server.start();
    Recording recording;

    play("Submarine");
    ASSERT_TRUE(eventually([&] { return recording.amplitude(inSubmarine) > heard; }));
    play("Tink");

    ASSERT_TRUE(eventually([&] { return recording.amplitude(inTink, 50ms) > heard; }));
    EXPECT_GT(recording.amplitude(inSubmarine), heard);
}

TEST_F(CanberraSoundLibraryTest, WithoutASoundServerNothingHappens)
{
    const auto before = Resources::now();
    play("Tink");
    ASSERT_TRUE(eventually([&] { return Resources::now().threads > before.threads; }));

    play("Tink", 100);
}

TEST_F(CanberraSoundLibraryTest, IsHeardAsSoonAsASoundServerIsThere)
{
    play("Submarine");
    QTest::qWait(200);

    server.start();
    Recording recording;
    play("Tink");

    ASSERT_TRUE(eventually([&] { return recording.amplitude(inTink, 50ms) > heard; }));
    EXPECT_LT(recording.amplitude(inSubmarine), heard / 4) << "played late";
}

TEST_F(CanberraSoundLibraryTest, IsHeardAgainAfterTheSoundServerWasReplaced)
{
    server.start();
    {
        Recording recording;
        play("Tink");
        ASSERT_TRUE(eventually([&] { return recording.amplitude(inTink, 50ms) > heard; }));
    }

    server.kill();
    play("Tink");
    server.start();

    Recording recording;
    play("Submarine");
    ASSERT_TRUE(eventually([&] { return recording.amplitude(inSubmarine) > heard; }));
}

TEST_F(CanberraSoundLibraryTest, AHangingSoundServerHoldsUpNobodyAndIsNotFloodedLater)
{
    server.start();
    play("Tink");
    ASSERT_TRUE(eventually([&] { return server.list("clients").contains("\"velto\""); }));

    server.freeze();
    play("Submarine", 100);
    QTest::qWait(1000);
    server.thaw();

    // One was on its way to the server when it froze; the rest is out of date.
    Recording recording;
    play("Tink");
    ASSERT_TRUE(eventually([&] { return recording.amplitude(inTink, 50ms) > heard; }));
    EXPECT_LT(server.list("sink-inputs").count("Sink Input #"), 4);
}

TEST_F(CanberraSoundLibraryTest, TheLastSoundIsHeardHoweverLongTheServerHangs)
{
    server.start();
    Recording recording;
    play("Tink");
    ASSERT_TRUE(eventually([&] { return server.list("clients").contains("\"velto\""); }));

    server.freeze();
    play("Tink", 10);
    play("Submarine");
    QTest::qWait(1000);
    server.thaw();

    EXPECT_TRUE(eventually([&] { return recording.amplitude(inSubmarine, 50ms) > heard; }, 5s));
}

TEST_F(CanberraSoundLibraryTest, StartsASoundAtOnce)
{
    server.start();
    play("Tink"); // From now on there is a connection.
    ASSERT_TRUE(eventually([&] { return server.list("clients").contains("\"velto\""); }));

    std::chrono::milliseconds shortest = 1h;
    for (int i = 0; i < 5; ++i) {
        QTest::qWait(200);
        Recording recording;
        const auto start = Clock::now();
        play("Pop");
        ASSERT_TRUE(eventually([&] { return !recording.isSilent(); }));
        shortest
            = std::min(shortest, std::chrono::duration_cast<std::chrono::milliseconds>(recording.firstSound() - start));
    }

    RecordProperty("milliseconds", static_cast<int>(shortest.count()));
    EXPECT_LT(shortest, 60ms);
}

TEST_F(CanberraSoundLibraryTest, GoesAtOnceWhileTheSoundServerHangs)
{
    server.start();
    play("Tink");
    ASSERT_TRUE(eventually([&] { return server.list("clients").contains("\"velto\""); }));
    server.freeze();
    play("Tink");
    QTest::qWait(100);

    const auto start = Clock::now();
    library.reset();

    EXPECT_LT(Clock::now() - start, 1s);
    server.thaw();
}

} // namespace
} // namespace velto
