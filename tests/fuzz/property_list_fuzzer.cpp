// SPDX-License-Identifier: MIT
#include "desktop/storage/PropertyList.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Whatever is taken for a property list can be written, and reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using velto::PropertyList;
    auto list = PropertyList::parse({reinterpret_cast<const char*>(data), size});
    if (!list)
        return 0;

    list->set("focusMinutes", std::int64_t{25});
    const auto again = PropertyList::parse(list->toXml());
    if (!again || again->value("focusMinutes") != velto::StoredValue{std::int64_t{25}})
        std::abort();
    for (const char* key : {"a", "b", "c"})
        if (list->value(key).has_value() != again->value(key).has_value())
            std::abort();
    return 0;
}
