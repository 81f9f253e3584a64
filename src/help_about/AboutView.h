// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"

#include <QWidget>

#include <string>

class QBoxLayout;

namespace velto {

class Bundle;
class Calendar;
class RunLoop;
class TextLabel;
class Workspace;

/// Set by whoever distributes the program.
struct AboutDetails {
    std::string rightsHolder;
    std::string supportLink;
    std::string websiteLink;
    std::string donationLink;
};

/// What the program is, its version and owner, and where to find more.
class AboutView final : public QWidget {
    Q_OBJECT

public:
    /// The references must outlive this. The texts are read when it is shown, and every second while it is.
    AboutView(QSize size, AboutDetails details, const Bundle& bundle, const Calendar& calendar, Workspace& workspace,
        RunLoop& runLoop);

    [[nodiscard]] QSize sizeHint() const override { return m_size; }

    bool event(QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void refresh();
    [[nodiscard]] QWidget* link(const QString& title, const std::string& url);

    QSize m_size;
    AboutDetails m_details;
    const Bundle& m_bundle;
    const Calendar& m_calendar;
    Workspace& m_workspace;
    RunLoop& m_runLoop;
    QBoxLayout* m_column;
    TextLabel* m_title;
    TextLabel* m_version;
    TextLabel* m_rights;
    Subscription m_refreshes;
};

} // namespace velto
