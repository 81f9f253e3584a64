// SPDX-License-Identifier: MIT
#include "desktop/windows/HelpAboutWindows.h"

#include "desktop/windows/QtWindow.h"
#include "help_about/AboutView.h"
#include "help_about/HelpView.h"
#include "platform/Bundle.h"

namespace velto {

std::unique_ptr<Window> makeHelpWindow(const Screens& screens)
{
    const auto title = HelpView::tr("How to Use velto");
    return std::make_unique<QtWindow>(screens, title, title, std::make_unique<HelpView>(QSize(600, 800)));
}

std::unique_ptr<Window> makeAboutWindow(
    const Screens& screens, const Bundle& bundle, const Calendar& calendar, Workspace& workspace, RunLoop& runLoop)
{
    const AboutDetails details{VELTO_RIGHTS_HOLDER, VELTO_SUPPORT_LINK, VELTO_WEBSITE_LINK, VELTO_DONATION_LINK};
    return std::make_unique<QtWindow>(screens, QString(),
        AboutView::tr("About %1").arg(QString::fromStdString(applicationName(bundle))),
        std::make_unique<AboutView>(QSize(640, 240), details, bundle, calendar, workspace, runLoop));
}

} // namespace velto
