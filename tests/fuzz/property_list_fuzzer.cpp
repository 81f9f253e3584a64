// SPDX-License-Identifier: MIT
#include "desktop/storage/PropertyList.h"
#include "platform/SoundLibrary.h"
#include "settings/AppSettings.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using namespace velto;

class ListStore final : public KeyValueStore {
public:
    explicit ListStore(PropertyList& list) : m_list(list) { }

    std::optional<StoredValue> object(std::string_view key) const override { return m_list.value(key); }
    void set(std::string_view key, StoredValue value) override { m_list.set(key, value); }

private:
    PropertyList& m_list;
};

class Silence final : public SoundLibrary {
public:
    std::unique_ptr<Sound> soundNamed(std::string_view /*name*/) override { return nullptr; }
};

/// Calls `visit` with each setting of both.
void withEach(AppSettings& one, AppSettings& other, const auto& visit)
{
    visit(one.focusMinutes, other.focusMinutes);
    visit(one.breakMinutes, other.breakMinutes);
    visit(one.autoTransition, other.autoTransition);
    visit(one.countdownSound, other.countdownSound);
    visit(one.focusEndSound, other.focusEndSound);
    visit(one.breakEndSound, other.breakEndSound);
    visit(one.focusMusicPreset, other.focusMusicPreset);
    visit(one.breakMusicPreset, other.breakMusicPreset);
    visit(one.focusCustomURL, other.focusCustomURL);
    visit(one.breakCustomURL, other.breakCustomURL);
    visit(one.enableFocusMusic, other.enableFocusMusic);
    visit(one.enableBreakMusic, other.enableBreakMusic);
}

} // namespace

/// Whatever is taken for a property list can be written, and gives the same settings when it is read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    auto list = PropertyList::parse({reinterpret_cast<const char*>(data), size});
    if (!list)
        return 0;

    ListStore store{*list};
    Silence sounds;
    AppSettings settings{store, sounds};
    withEach(settings, settings, [](auto& setting, auto&) { setting.set(setting()); });
    settings.musicVolume.set(settings.musicVolume());

    auto again = PropertyList::parse(list->toXml());
    if (!again)
        std::abort();
    ListStore storeAgain{*again};
    AppSettings settingsAgain{storeAgain, sounds};
    withEach(settings, settingsAgain, [](auto& setting, auto& settingAgain) {
        if (setting() != settingAgain())
            std::abort();
    });
    // NaN stays NaN.
    const float volume = settings.musicVolume();
    const float volumeAgain = settingsAgain.musicVolume();
    if (volume != volumeAgain && !(volume != volume && volumeAgain != volumeAgain))
        std::abort();
    return 0;
}
