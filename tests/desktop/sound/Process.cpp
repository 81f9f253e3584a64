// SPDX-License-Identifier: MIT
#include "Process.h"

#include <sys/prctl.h>

#include <csignal>

namespace velto {

std::unique_ptr<QProcess> startProcess(const QString& program, const QStringList& arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process->start(program, arguments);
    return process;
}

} // namespace velto
