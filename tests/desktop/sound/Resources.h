// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>

namespace velto {

/// What this process holds of the system.
struct Resources {
    int threads = 0;
    int handles = 0; ///< Open files, sockets among them.
    int sockets = 0;
    int children = 0;       ///< Processes started by its main thread, those among them that are not reaped yet.
    std::size_t memory = 0; ///< Bytes of its own in memory.

    [[nodiscard]] static Resources now();

    /// Of everything but memory.
    [[nodiscard]] bool areNoMoreThan(const Resources& others) const;
};

std::ostream& operator<<(std::ostream& stream, const Resources& resources);

} // namespace velto
