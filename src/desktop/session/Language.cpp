// SPDX-License-Identifier: MIT
#include "desktop/session/Language.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace velto {

namespace {

bool install(const QString& catalogue, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    return translator->load(catalogue, folder) && QCoreApplication::installTranslator(translator);
}

} // namespace

void speak(const QStringList& languages)
{
    for (auto name : languages) {
        const QLocale language(name);
        if (language.language() == QLocale::English)
            return;
        name.replace(u'-', u'_');
        if (!install(QStringLiteral("velto_") + name, QStringLiteral(":/i18n")))
            continue;
        // The texts of Qt itself, such as the menu of a text field.
        install(QStringLiteral("qtbase_") + name, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        QGuiApplication::setLayoutDirection(language.textDirection());
        return;
    }
}

} // namespace velto
