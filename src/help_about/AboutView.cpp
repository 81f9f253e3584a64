// SPDX-License-Identifier: MIT
#include "help_about/AboutView.h"

#include "help_about/AboutButton.h"
#include "help_about/AboutTexts.h"
#include "help_about/ApplicationIcon.h"
#include "platform/Calendar.h"
#include "platform/RunLoop.h"
#include "platform/Workspace.h"
#include "style/Stack.h"
#include "style/TextLabel.h"

#include <utility>

namespace velto {

using namespace std::chrono_literals;

AboutView::AboutView(QSize size, AboutDetails details, const Bundle& bundle, const Calendar& calendar,
    Workspace& workspace, RunLoop& runLoop) :
    m_size(size),
    m_details(std::move(details)),
    m_bundle(bundle),
    m_calendar(calendar),
    m_workspace(workspace),
    m_runLoop(runLoop),
    m_title(new TextLabel({}, TextStyle::title2, ColorName::label, QFont::Bold)),
    m_version(new TextLabel({}, TextStyle::subheadline, ColorName::secondaryLabel)),
    m_rights(new TextLabel({}, TextStyle::footnote, ColorName::tertiaryLabel))
{
    auto* icon = new ApplicationIcon(120, 16);
    auto* description = new TextLabel("A focus timer companion built to keep sessions simple and distraction-free.",
        TextStyle::body, ColorName::secondaryLabel);
    description->setWordWrap(true);
    auto* support = aboutButton("Support", m_details.supportLink);
    auto* website = aboutButton("Website", m_details.websiteLink);
    auto* coffee = aboutButton("Buy Me a Coffee", m_details.donationLink);

    auto* links = row({.spacing = 16}, support, website, coffee);
    auto* words = column({.spacing = 10}, m_title, filling(description), links);
    setLayout(column({.spacing = 20, .padding = {24, 24, 24, 24}}, spacer,
        row({.spacing = 16, .alignment = Qt::AlignTop}, icon, words), m_version, m_rights, spacer));
}

void AboutView::showEvent(QShowEvent* event)
{
    refresh();
    m_refreshes = m_runLoop.every(1s, [this] { refresh(); });
    QWidget::showEvent(event);
}

void AboutView::hideEvent(QHideEvent* event)
{
    m_refreshes.reset();
    QWidget::hideEvent(event);
}

void AboutView::refresh()
{
    m_title->setText(QString::fromStdString(aboutTitle(m_bundle)));
    m_version->setText(QString::fromStdString(versionString(m_bundle)));
    m_rights->setText(QString::fromStdString(rightsLine(m_calendar.currentYear(), m_details.rightsHolder)));
}

QWidget* AboutView::aboutButton(const QString& title, const std::string& url)
{
    auto* button = new AboutButton(title);
    connect(button, &AboutButton::clicked, this, [this, url] { m_workspace.open(url); });
    return button;
}

} // namespace velto
