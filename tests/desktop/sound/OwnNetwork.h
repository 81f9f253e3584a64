// SPDX-License-Identifier: MIT
#pragma once

namespace velto {

/// A network that this process and its children share with nobody: a loopback interface that has, beside 127.0.0.1,
/// an address of the world and one of a home, both by the look of them only.
struct OwnNetwork {
    static constexpr auto world = "203.0.113.7";
    static constexpr auto home = "192.168.77.1";

    /// Enters one if the system lets us; to be called before there are threads.
    static void enter();
    [[nodiscard]] static bool isEntered();
};

} // namespace velto
