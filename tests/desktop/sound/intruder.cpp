// SPDX-License-Identifier: MIT
// A plug-in of GStreamer that looks at every stream, and that a stream has taken over: what it tries is what anybody
// could try who finds a mistake in one of the libraries.
#include <fcntl.h>
#include <gst/gst.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

void report(const char* attempt, bool succeeded)
{
    std::cerr << "intruder: " << attempt << (succeeded ? " succeeded" : " refused") << std::endl;
}

bool canOpen(const std::string& path, int flags)
{
    const int file = open(path.c_str(), flags | O_CLOEXEC, 0600);
    if (file >= 0)
        close(file);
    return file >= 0;
}

bool canRun(const char* program)
{
    char* arguments[]{const_cast<char*>(program), nullptr};
    pid_t process = 0;
    return posix_spawn(&process, program, nullptr, nullptr, arguments, nullptr) == 0;
}

void attempt(GstTypeFind*, gpointer)
{
    const std::string home = std::getenv("HOME");
    report("reading a file of the user", canOpen(home + "/.ssh/id", O_RDONLY));
    report("listing a folder of the user", canOpen(home, O_RDONLY | O_DIRECTORY));
    report("writing a file of the user", canOpen(home + "/.ssh/id", O_WRONLY));
    report("creating a file", canOpen(home + "/new", O_CREAT | O_WRONLY) || canOpen("/tmp/new", O_CREAT | O_WRONLY));
    report("changing rights", chmod((home + "/.ssh/id").c_str(), 0644) == 0);
    report("deleting a file", unlink((home + "/.ssh/id").c_str()) == 0);
    report("running a program", canRun("/bin/true"));
    report("tracing velto", ptrace(PTRACE_SEIZE, getppid(), nullptr, nullptr) == 0);
    report("signalling velto", kill(getppid(), 0) == 0);
    report("connecting to the session", socket(AF_UNIX, SOCK_STREAM, 0) >= 0);
    report("raw sockets", socket(AF_PACKET, SOCK_RAW, 0) >= 0);
    constexpr std::size_t tooMuch = 600 << 20;
    report("using much memory",
        mmap(nullptr, tooMuch, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) != MAP_FAILED);
    const rlimit unlimited{RLIM_INFINITY, RLIM_INFINITY};
    report("raising a limit", setrlimit(RLIMIT_FSIZE, &unlimited) == 0);
    std::cerr << "intruder: done" << std::endl;
}

gboolean registerFeatures(GstPlugin* plugin)
{
    return gst_type_find_register(
        plugin, "intruder", GST_RANK_PRIMARY + 100, attempt, "mp3", nullptr, nullptr, nullptr);
}

} // namespace

#define PACKAGE "intruder"
GST_PLUGIN_DEFINE(GST_VERSION_MAJOR, GST_VERSION_MINOR, intruder, "Tries what it must not", registerFeatures, "1",
    "MIT/X11", PACKAGE, "https://velto.example")
