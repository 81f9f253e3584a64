// SPDX-License-Identifier: MIT
#include "platform/KeyValueStore.h"
#include "platform/SoundLibrary.h"
#include "settings/AppSettings.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using namespace velto;

/// Has one value, under every key.
class OneBlob final : public KeyValueStore {
public:
    explicit OneBlob(Blob blob) : m_blob(std::move(blob)) { }

    std::optional<StoredValue> object(std::string_view /*key*/) const override { return m_blob; }
    void set(std::string_view /*key*/, StoredValue value) override { m_blob = std::get<Blob>(value); }

    [[nodiscard]] const Blob& blob() const { return m_blob; }

private:
    Blob m_blob;
};

class Silence final : public SoundLibrary {
public:
    std::unique_ptr<Sound> soundNamed(std::string_view /*name*/) override { return nullptr; }
};

/// Whether `blob` is a JSON string of `name` as far as can be told without a parser: blanks around two quotes,
/// and the name between them unless something is escaped.
bool isQuoted(const Blob& blob, std::string_view name)
{
    std::string_view text{reinterpret_cast<const char*>(blob.data()), blob.size()};
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    constexpr std::string_view blanks = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    text = text.substr(0, text.find_last_not_of(blanks) + 1);
    if (text.size() < 2 || !text.starts_with('"') || !text.ends_with('"'))
        return false;
    text = text.substr(1, text.size() - 2);
    return text == name || text.find('\\') != std::string_view::npos;
}

} // namespace

/// A stored blob is the default, or the name that it quotes and nothing else.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    OneBlob store{Blob(data, data + size)};
    Silence sounds;
    const AppSettings settings{store, sounds};
    if (settings.focusEndSound() != SoundOption::glass && !isQuoted(store.blob(), rawValue(settings.focusEndSound())))
        std::abort();
    if (settings.focusMusicPreset() != MusicPreset::lofi
        && !isQuoted(store.blob(), rawValue(settings.focusMusicPreset())))
        std::abort();
    return 0;
}
