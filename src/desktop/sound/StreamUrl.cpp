// SPDX-License-Identifier: MIT
#include "desktop/sound/StreamUrl.h"

namespace velto {

QUrl streamUrl(const std::string& text)
{
    return QUrl(QString::fromStdString(text));
}

bool isOnTheWeb(const QUrl& url)
{
    return (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) && !url.host().isEmpty();
}

} // namespace velto
