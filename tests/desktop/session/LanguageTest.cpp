// SPDX-License-Identifier: MIT
#include "desktop/session/Language.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QTranslator>

namespace velto {

namespace {

class LanguageTest : public testing::Test {
protected:
    ~LanguageTest() override { qDeleteAll(application.findChildren<QTranslator*>()); }

    static QString quit() { return QCoreApplication::translate("Menu", "Quit"); }

private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[1] = {m_name};

protected:
    QGuiApplication application{m_count, m_arguments};
};

TEST_F(LanguageTest, SpeaksTheFirstThatItCan)
{
    speak({"xx-XX", "fr-CA", "de-DE"});

    EXPECT_EQ(quit(), "Quitter");
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_F(LanguageTest, KnowsTheNamesThatLocalesHave)
{
    const std::pair<QStringList, QString> cases[] = {
        {{"pt-BR", "pt-Latn-BR", "pt"}, "Sair"},
        {{"pt", "pt-Latn-BR", "pt-BR"}, "Sair"},
        {{"zh-CN", "zh-Hans-CN", "zh"}, "退出"},
        {{"ja-JP", "ja-Jpan-JP", "ja"}, "終了"},
        // Other languages by the same name.
        {{"pt-PT", "pt-Latn-PT"}, "Quit"},
        {{"zh-TW", "zh-Hant-TW"}, "Quit"},
    };
    for (const auto& [languages, expected] : cases) {
        speak(languages);
        EXPECT_EQ(quit(), expected) << languages.join(':').toStdString();
        qDeleteAll(application.findChildren<QTranslator*>());
    }
}

TEST_F(LanguageTest, EnglishInFrontOfOthersIsEnglish)
{
    speak({"en-GB", "de-DE"});

    EXPECT_EQ(quit(), "Quit");
}

TEST_F(LanguageTest, WithoutACatalogueItStaysEnglishFromLeftToRight)
{
    for (const auto& languages : {QStringList{}, QStringList{"C"}, QStringList{"he-IL", "he"}}) {
        speak(languages);

        EXPECT_EQ(quit(), "Quit");
        EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }
}

TEST_F(LanguageTest, ArabicIsReadFromRightToLeftAlsoWithoutACatalogueOfQt)
{
    speak({"ar-EG", "ar"});

    EXPECT_EQ(quit(), "أنهِ");
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

} // namespace

} // namespace velto
