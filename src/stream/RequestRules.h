// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace velto {

/// Holds every request that this process makes from now on, be it for a stream, a playlist, a segment or whatever one
/// of them redirects to, to what the first one was: once protected, not unprotected; never nearer to this machine; and
/// no more than ten redirections each. `giveUp` is called on any thread, before anything is sent, and doesn't return.
void holdRequestsToTheFirst(void (*giveUp)(const std::string& reason));

} // namespace velto
