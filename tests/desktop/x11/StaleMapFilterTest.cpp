// SPDX-License-Identifier: MIT
#include "desktop/x11/StaleMapFilter.h"

#include "desktop/x11/X11Desktop.h"
#include "fixtures/Desktop.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QWindow>

namespace velto {

namespace {

/// Shows a window again between the word of its mapping and that of its end.
class ShownInBetween final : public QAbstractNativeEventFilter {
public:
    explicit ShownInBetween(QWindow& window) : m_window(window) { qApp->installNativeEventFilter(this); }

    bool nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/) override
    {
        const auto* event = static_cast<const xcb_unmap_notify_event_t*>(message);
        if ((event->response_type & 0x7f) == XCB_UNMAP_NOTIFY && event->window == m_window.winId() && !m_isDone) {
            m_isDone = true;
            m_window.show();
        }
        return false;
    }

    [[nodiscard]] bool isDone() const { return m_isDone; }

private:
    QWindow& m_window;
    bool m_isDone = false;
};

TEST(StaleMapFilterTest, AWindowHiddenAndShownAtOnceIsNotTakenForMapped)
{
    const x11::StaleMapFilter filter;
    static int complaints;
    complaints = 0;
    QWindow window;
    window.setFlag(Qt::BypassWindowManagerHint);
    window.show();
    window.hide();
    const ShownInBetween shown(window);
    QLoggingCategory::setFilterRules("qt.qpa.xcb.debug=true"); // not a warning in every version
    const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        complaints += text.contains("called on mapped window");
    });

    EXPECT_TRUE(eventually([&] { return shown.isDone() && window.isExposed(); }));

    qInstallMessageHandler(before);
    QLoggingCategory::setFilterRules({});
    EXPECT_EQ(complaints, 0);
}

} // namespace

} // namespace velto
