// SPDX-License-Identifier: MIT
#include "style/Translation.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace velto {

QString translated(const char* context, std::string_view english)
{
    static const QRegularExpression number(QStringLiteral("-?[0-9]+"));
    const auto text = QString::fromUtf8(english.data(), static_cast<qsizetype>(english.size()));
    QStringList numbers;
    QString source;
    qsizetype end = 0;
    for (auto found = number.globalMatch(text); found.hasNext();) {
        const auto match = found.next();
        numbers += match.captured();
        source += text.sliced(end, match.capturedStart() - end) + QStringLiteral("%%1").arg(numbers.size());
        end = match.capturedEnd();
    }
    source += text.sliced(end);

    if (numbers.size() == 1) {
        source.replace(QLatin1String("%1"), QLatin1String("%n"));
        return QCoreApplication::translate(context, source.toUtf8(), nullptr, numbers.front().toInt());
    }
    auto shown = QCoreApplication::translate(context, source.toUtf8());
    for (const auto& digits : numbers)
        shown = shown.arg(digits);
    return shown;
}

} // namespace velto
