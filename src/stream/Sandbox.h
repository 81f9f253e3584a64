// SPDX-License-Identifier: MIT
#pragma once

namespace velto {

/// Gives up for good what a player of streams never needs: other programs and processes, files but those of libraries,
/// certificates, name resolution and the sound server, memory over 512 MiB, core files and special system calls. Where
/// the system lacks one of the means the log says so and the others hold.
///
/// To be called while there is one thread; holds for those to come.
void enterSandbox();

/// Gives up connecting to local sockets, such as that of the session bus, in all threads.
void leaveLocalSockets();

} // namespace velto
