// SPDX-License-Identifier: MIT
// Assigns one number after the other to one key of a store, and says on standard output when each is done.
#include "desktop/storage/PlistKeyValueStore.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>

#include <unistd.h>

int main(int argc, char* argv[])
{
    if (argc != 3)
        return EXIT_FAILURE;

    velto::PlistKeyValueStore store{argv[1]};
    for (std::int64_t number = std::atoll(argv[2]);; ++number) {
        store.set("number", number);
        store.waitUntilWritten(std::chrono::minutes{1});
        if (::write(STDOUT_FILENO, &number, sizeof number) != sizeof number)
            return EXIT_FAILURE;
    }
}
