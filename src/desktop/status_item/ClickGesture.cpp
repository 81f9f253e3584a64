// SPDX-License-Identifier: MIT
#include "desktop/status_item/ClickGesture.h"

#include <utility>

using namespace std::chrono_literals;

namespace velto {

namespace {

constexpr auto memoryAfterRelease = 500ms;
/// Time for a panel host to say, after the release, that the click opened our menu.
constexpr auto menuDelay = 800ms;

} // namespace

ClickGesture::ClickGesture(RunLoop& runLoop) : m_runLoop(runLoop) { }

bool ClickGesture::claimClick()
{
    if (m_catchUp)
        m_catchUp();
    m_menuIsOpen = false;
    return std::exchange(m_hasHidden, false);
}

void ClickGesture::menuOpened()
{
    if (m_catchUp)
        m_catchUp();
    stopHiding();
    m_menuIsOpen = true;
}

void ClickGesture::menuClosed()
{
    if (m_catchUp)
        m_catchUp();
    m_menuIsOpen = false;
}

void ClickGesture::menuRequested()
{
    if (m_catchUp)
        m_catchUp();
    if (m_waitingHide)
        menuOpened();
}

void ClickGesture::press(const Press& press, std::function<void()> hide)
{
    stopHiding();
    m_timeout.cancel();
    m_hasHidden = false;

    if (m_menuIsOpen) {
        // A press beside the menu closes it; where menus are not windows, nothing may report that.
        m_menuIsOpen = press.target == Press::Target::menu;
    } else if (press.opensMenus && press.target == Press::Target::bar) {
        m_waitingHide = std::move(hide);
    } else if (hide) {
        m_hasHidden = true;
        hide();
    }
}

void ClickGesture::release()
{
    if (m_hasHidden)
        m_timeout = m_runLoop.after(memoryAfterRelease, [this] { m_hasHidden = false; });
    else if (m_waitingHide)
        m_timeout = m_runLoop.after(menuDelay, [this] {
            if (const auto hide = std::exchange(m_waitingHide, nullptr))
                hide();
        });
}

void ClickGesture::menusGone()
{
    m_menuIsOpen = false;
}

void ClickGesture::stopHiding()
{
    m_waitingHide = nullptr;
}

void ClickGesture::setCatchUp(std::function<void()> catchUp)
{
    m_catchUp = std::move(catchUp);
}

bool ClickGesture::isUnderway() const
{
    return m_hasHidden || m_waitingHide;
}

} // namespace velto
