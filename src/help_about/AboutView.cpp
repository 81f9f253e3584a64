// SPDX-License-Identifier: MIT
#include "help_about/AboutView.h"

#include "help_about/AboutTexts.h"
#include "help_about/ApplicationIcon.h"
#include "platform/Bundle.h"
#include "platform/Calendar.h"
#include "platform/RunLoop.h"
#include "platform/Workspace.h"
#include "style/Button.h"
#include "style/Paragraph.h"
#include "style/Stack.h"
#include "style/TextLabel.h"

#include <QEvent>

#include <utility>

namespace velto {

using namespace std::chrono_literals;

namespace {

constexpr int spacing = 20;

} // namespace

AboutView::AboutView(QSize size, AboutDetails details, const Bundle& bundle, const Calendar& calendar,
    Workspace& workspace, RunLoop& runLoop) :
    m_size(size),
    m_details(std::move(details)),
    m_bundle(bundle),
    m_calendar(calendar),
    m_workspace(workspace),
    m_runLoop(runLoop),
    m_title(new TextLabel({}, TextStyle::title2)),
    m_version(new TextLabel({}, TextStyle::subheadline, ColorName::secondaryLabel)),
    m_rights(new TextLabel({}, TextStyle::footnote, ColorName::tertiaryLabel))
{
    auto* icon = new ApplicationIcon(120, 16);
    auto* description = new Paragraph(tr("A focus timer companion built to keep sessions simple and distraction-free."),
        TextStyle::body, ColorName::secondaryLabel, Qt::AlignHCenter);
    auto* support = link(tr("Support"), m_details.supportLink);
    auto* website = link(tr("Website"), m_details.websiteLink);
    auto* coffee = link(tr("Buy Me a Coffee"), m_details.donationLink);

    auto* links = row({.spacing = 16}, support, website, coffee);
    auto* words = column({.spacing = 10}, m_title, filling(description), links, spacer);
    m_column = column({.spacing = spacing, .padding = {24, 24, 24, 24}}, spacer,
        filling(row({.spacing = 16, .alignment = {}}, spacer, column({}, icon, spacer), words, spacer)), m_version,
        m_rights, spacer);
    setLayout(m_column);
}

bool AboutView::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize) {
        if (const int fitting = fittingSpacing(*m_column, size(), spacing); fitting != m_column->spacing())
            m_column->setSpacing(fitting);
    }
    return QWidget::event(event);
}

void AboutView::showEvent(QShowEvent* event)
{
    refresh();
    m_refreshes = m_runLoop.every(1s, [this] { refresh(); });
    QWidget::showEvent(event);
}

void AboutView::hideEvent(QHideEvent* event)
{
    m_refreshes.cancel();
    QWidget::hideEvent(event);
}

void AboutView::refresh()
{
    m_title->setText(tr("%1 - Focus Timer").arg(QString::fromStdString(applicationName(m_bundle))));
    m_version->setText(QString::fromStdString(versionString(m_bundle)));
    m_rights->setText(
        tr("© %1 %2. All rights reserved.")
            .arg(QString::number(m_calendar.currentYear()), QString::fromStdString(m_details.rightsHolder)));
}

QWidget* AboutView::link(const QString& title, const std::string& url)
{
    auto* button = new Button(ButtonKind::link, title);
    connect(button, &Button::clicked, this, [this, url] { m_workspace.open(url); });
    return button;
}

} // namespace velto
