// SPDX-License-Identifier: MIT
#include "desktop/session/QtWorkspace.h"

#include <QDesktopServices>
#include <QUrl>

namespace velto {

void QtWorkspace::open(const std::string& url)
{
    const QUrl link{QString::fromStdString(url), QUrl::StrictMode};
    if (link.isValid() && !link.isRelative())
        QDesktopServices::openUrl(link);
}

} // namespace velto
