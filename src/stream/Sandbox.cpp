// SPDX-License-Identifier: MIT
#include "stream/Sandbox.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <pthread.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace velto {

namespace {

constexpr rlim_t mostMemory = VELTO_STREAM_MEMORY;

constexpr std::array forbiddenCalls{// Programs and processes.
    "execve", "execveat", "fork", "vfork", "ptrace", "process_vm_readv", "process_vm_writev", "process_madvise",
    "pidfd_open", "pidfd_getfd", "pidfd_send_signal", "kcmp", "kill", "tkill", "rt_sigqueueinfo", "rt_tgsigqueueinfo",
    "setns", "unshare", "personality", "setrlimit",
    // Who it is.
    "setuid", "setgid", "setreuid", "setregid", "setresuid", "setresgid", "setfsuid", "setfsgid", "setgroups", "capset",
    "keyctl", "add_key", "request_key",
    // Files that are not opened first, and file systems.
    "chmod", "fchmodat", "fchmodat2", "chown", "lchown", "fchownat", "setxattr", "lsetxattr", "setxattrat",
    "removexattr", "lremovexattr", "removexattrat", "utime", "utimes", "utimensat", "futimesat", "truncate",
    "open_by_handle_at", "name_to_handle_at", "mount", "umount", "umount2", "pivot_root", "chroot", "open_tree",
    "move_mount", "fsopen", "fsconfig", "fsmount", "fspick", "mount_setattr", "swapon", "swapoff", "quotactl",
    "quotactl_fd", "acct", "fanotify_init",
    // Being connected to, and memory that the limit does not count.
    "listen", "accept", "accept4", "shmget", "shmat", "msgget", "semget", "mq_open", "memfd_secret",
    // The system.
    "bpf", "perf_event_open", "userfaultfd", "io_uring_setup", "io_uring_enter", "io_uring_register", "init_module",
    "finit_module", "delete_module", "kexec_load", "kexec_file_load", "reboot", "syslog", "settimeofday",
    "clock_settime", "clock_adjtime", "adjtimex", "sethostname", "setdomainname", "modify_ldt", "iopl", "ioperm",
    "vhangup"};

constexpr std::array readable{"/usr", "/lib", "/lib64", "/etc/ld.so.cache", "/etc/ssl", "/etc/ca-certificates",
    "/etc/pki", "/etc/crypto-policies", "/etc/gnutls", "/etc/pulse", "/etc/machine-id", "/var/lib/dbus/machine-id",
    "/etc/localtime", "/etc/passwd", "/etc/hosts", "/etc/host.conf", "/etc/resolv.conf", "/etc/nsswitch.conf",
    "/etc/gai.conf", "/etc/services", "/etc/protocols", "/run/systemd/resolve", "/run/resolvconf",
    "/run/NetworkManager/resolv.conf", "/dev/urandom", "/dev/null", "/proc/cpuinfo", "/sys/devices/system/cpu"};

constexpr __u64 reading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

void reportLack(const char* what)
{
    std::cerr << "velto.audio: the sandbox goes without " << what << std::endl;
}

/// The stacks of threads count as memory, and are as large as the user's limit unless this is said.
void limitStacks()
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, std::size_t{8} << 20);
    pthread_setattr_default_np(&attributes);
    pthread_attr_destroy(&attributes);
}

void limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{most, most};
    setrlimit(resource, &both);
}

std::string variable(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// Of this user and this run, beside those that are the same everywhere.
std::vector<std::string> readablePaths()
{
    std::vector<std::string> paths(readable.begin(), readable.end());
    const auto home = variable("HOME");
    const auto configuration = variable("XDG_CONFIG_HOME");
    paths.push_back((configuration.empty() ? home + "/.config" : configuration) + "/pulse");
    paths.push_back(home + "/.pulse-cookie");
    paths.push_back(variable("XDG_RUNTIME_DIR") + "/pulse");
    for (const auto* name : {"SSL_CERT_FILE", "PULSE_COOKIE", "PULSE_CLIENTCONFIG", "GST_PLUGIN_PATH"})
        paths.push_back(variable(name));
    return paths;
}

void allowReading(int ruleset, const std::string& path)
{
    const int file = open(path.c_str(), O_PATH | O_CLOEXEC);
    struct stat status { };
    if (file < 0 || fstat(file, &status) != 0)
        return;
    landlock_path_beneath_attr rule{};
    rule.parent_fd = file;
    rule.allowed_access = S_ISDIR(status.st_mode) ? reading : LANDLOCK_ACCESS_FS_READ_FILE;
    syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
    close(file);
}

void leaveFiles()
{
    // What each version of the system can withhold: the first thirteen rights, then REFER, then TRUNCATE.
    const auto version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    landlock_ruleset_attr attributes{};
    attributes.handled_access_fs = (__u64{1} << (12 + std::clamp(version, 1L, 3L))) - 1;
    const auto ruleset = static_cast<int>(syscall(SYS_landlock_create_ruleset, &attributes, sizeof attributes, 0));
    if (version < 1 || ruleset < 0) {
        reportLack("landlock");
        return;
    }
    for (const auto& path : readablePaths())
        allowReading(ruleset, path);
    if (syscall(SYS_landlock_restrict_self, ruleset, 0) != 0)
        reportLack("landlock");
    close(ruleset);
}

/// A filter of system calls; what it forbids fails for lack of permission.
class Filter {
public:
    Filter() : m_context(seccomp_init(SCMP_ACT_ALLOW)) { }

    /// No effect for a call that the library or this machine does not know.
    template <class... Conditions>
    void forbid(const char* call, Conditions... conditions)
    {
        if (const int number = seccomp_syscall_resolve_name(call); number != __NR_SCMP_ERROR)
            seccomp_rule_add(m_context.get(), SCMP_ACT_ERRNO(EPERM), number, sizeof...(conditions), conditions...);
    }

    /// As on a system that doesn't have it yet.
    void hide(const char* call)
    {
        if (const int number = seccomp_syscall_resolve_name(call); number != __NR_SCMP_ERROR)
            seccomp_rule_add(m_context.get(), SCMP_ACT_ERRNO(ENOSYS), number, 0);
    }

    /// In all threads.
    void enter()
    {
        if (!m_context || seccomp_attr_set(m_context.get(), SCMP_FLTATR_CTL_TSYNC, 1) != 0
            || seccomp_load(m_context.get()) != 0)
            reportLack("seccomp");
    }

private:
    struct Release {
        void operator()(void* context) const { seccomp_release(context); }
    };
    std::unique_ptr<void, Release> m_context;
};

} // namespace

void enterSandbox()
{
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        reportLack("no_new_privs");

    std::signal(SIGXFSZ, SIG_IGN);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
    limitStacks();
    limit(RLIMIT_DATA, mostMemory);

    leaveFiles();

    Filter filter;
    for (const auto* call : forbiddenCalls)
        filter.forbid(call);
    // A new thread is all that may be cloned; what clone3 is asked for can't be seen.
    filter.forbid("clone", SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, 0));
    filter.hide("clone3");
    filter.forbid("tgkill", SCMP_A0(SCMP_CMP_NE, static_cast<scmp_datum_t>(getpid())));
    filter.forbid("prlimit64", SCMP_A2(SCMP_CMP_NE, 0));
    // Neither type into the terminal.
    filter.forbid("ioctl", SCMP_A1(SCMP_CMP_MASKED_EQ, 0xffffffff, TIOCSTI));
    filter.forbid("ioctl", SCMP_A1(SCMP_CMP_MASKED_EQ, 0xffffffff, TIOCLINUX));
    for (int family = 0; family < AF_MAX; ++family) {
        if (family != AF_UNIX && family != AF_INET && family != AF_INET6 && family != AF_NETLINK)
            filter.forbid("socket", SCMP_A0(SCMP_CMP_EQ, static_cast<scmp_datum_t>(family)));
    }
    filter.forbid("socket", SCMP_A0(SCMP_CMP_GE, AF_MAX));
    filter.enter();
}

void leaveLocalSockets()
{
    Filter filter;
    filter.forbid("socket", SCMP_A0(SCMP_CMP_EQ, AF_UNIX));
    filter.enter();
}

} // namespace velto
