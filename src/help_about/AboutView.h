// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <string>

namespace velto {

class Bundle;
class Calendar;
class TextLabel;
class Workspace;

/// What whoever distributes the program says of himself.
struct AboutDetails {
    std::string rightsHolder;
    std::string supportLink;
    std::string websiteLink;
    std::string donationLink;
};

/// What the program is, which version, whose, and where to find more.
class AboutView final : public QWidget {
    Q_OBJECT

public:
    /// `bundle`, `calendar` and `workspace` must outlive this. The texts are read whenever it is shown.
    AboutView(QSize size, AboutDetails details, const Bundle& bundle, const Calendar& calendar, Workspace& workspace);

    [[nodiscard]] QSize sizeHint() const override { return m_size; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] QWidget* aboutButton(const QString& title, const std::string& url);

    QSize m_size;
    AboutDetails m_details;
    const Bundle& m_bundle;
    const Calendar& m_calendar;
    Workspace& m_workspace;
    TextLabel* m_title;
    TextLabel* m_version;
    TextLabel* m_rights;
};

} // namespace velto
