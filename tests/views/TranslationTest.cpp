// SPDX-License-Identifier: MIT
#include "style/Translation.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

namespace velto {

namespace {

/// Speaks `language` as long as it lives.
class Speaking {
public:
    explicit Speaking(const QString& language)
    {
        EXPECT_TRUE(m_translator.load(":/i18n/velto_" + language));
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    QTranslator m_translator;
};

TEST(TranslationTest, WithoutACatalogueATextIsAsItWas)
{
    EXPECT_EQ(translated("Menu", "Quit"), "Quit");
    EXPECT_EQ(translated("Menu", "1 minutes"), "1 minutes");
    EXPECT_EQ(translated("Menu", "50m focus / 10m break"), "50m focus / 10m break");
    EXPECT_EQ(translated("TimerDisplay", "Focus: -3m  •  Break: 1000m"), "Focus: -3m  •  Break: 1000m");
}

TEST(TranslationTest, NumbersStandWhereTheLanguageWantsThem)
{
    const Speaking german("de");

    EXPECT_EQ(translated("Menu", "Quit"), "Beenden");
    EXPECT_EQ(translated("Menu", "50m focus / 10m break"), "50 min Fokus / 10 min Pause");
    EXPECT_EQ(translated("TimerDisplay", "Focus: -3m  •  Break: 1000m"), "Fokus: -3 min  •  Pause: 1000 min");
}

TEST(TranslationTest, ANumberChoosesThePlural)
{
    const Speaking polish("pl");

    EXPECT_EQ(translated("Menu", "1 minutes"), "1 minuta");
    EXPECT_EQ(translated("Menu", "3 minutes"), "3 minuty");
    EXPECT_EQ(translated("Menu", "15 minutes"), "15 minut");
    EXPECT_EQ(translated("Menu", "22 minutes"), "22 minuty");
}

TEST(TranslationTest, ArabicHasSixPlurals)
{
    const Speaking arabic("ar");

    EXPECT_EQ(translated("Menu", "0 minutes"), "0 دقيقة");
    EXPECT_EQ(translated("Menu", "1 minutes"), "دقيقة واحدة");
    EXPECT_EQ(translated("Menu", "2 minutes"), "دقيقتان");
    EXPECT_EQ(translated("Menu", "5 minutes"), "5 دقائق");
    EXPECT_EQ(translated("Menu", "15 minutes"), "15 دقيقة");
    EXPECT_EQ(translated("Menu", "100 minutes"), "100 دقيقة");
}

TEST(TranslationTest, NamesOfStationsAndSoundsStay)
{
    const Speaking japanese("ja");

    EXPECT_EQ(translated("Menu", "Groove Salad"), "Groove Salad");
    EXPECT_EQ(translated("SoundOption", "Glass"), "Glass");
    EXPECT_EQ(translated("SoundOption", "None"), "なし");
}

} // namespace

} // namespace velto
