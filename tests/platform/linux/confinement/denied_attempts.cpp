#include "platform/linux/confinement/denied_attempts.h"

#include <linux/netlink.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace vantor {

namespace {
constexpr long invalid = -1;
}

#define CALL(name) #name, SYS_##name

const std::vector<Attempt>& earlyAttempts() {
    static const std::vector<Attempt> all{
        {CALL(execve)},
        {CALL(execveat)},
#ifdef SYS_fork
        {CALL(fork)},
        {CALL(vfork)},
#endif
        {CALL(clone), EPERM, {SIGCHLD, 0, 0}},
        {CALL(clone3), ENOSYS},
        {CALL(ptrace)},
        {CALL(process_vm_readv)},
        {CALL(process_vm_writev)},
        {CALL(process_madvise)},
        {CALL(pidfd_getfd)},
        {CALL(pidfd_send_signal)},
        {CALL(kill), EPERM, {1, 0, 0}},
        {CALL(tgkill), EPERM, {1, 1, 0}},
        {CALL(rt_sigqueueinfo), EPERM, {1, 0, invalid}},
        {CALL(rt_tgsigqueueinfo), EPERM, {1, 1, 0}},
        {CALL(tkill), EPERM, {1, 0, 0}},
        {CALL(kcmp)},
        {CALL(personality)},
        {CALL(bpf)},
        {CALL(perf_event_open)},
        {CALL(userfaultfd)},
        {CALL(io_uring_setup)},
        {CALL(io_uring_enter)},
        {CALL(io_uring_register)},
        {CALL(add_key)},
        {CALL(request_key)},
        {CALL(keyctl)},
#ifdef SYS_modify_ldt
        {CALL(modify_ldt)},
        {CALL(iopl)},
        {CALL(ioperm)},
#endif
        {CALL(mount)},
        {CALL(umount2)},
        {CALL(move_mount)},
        {CALL(mount_setattr)},
        {CALL(open_tree)},
        {"open_tree_attr", 467},
        {CALL(fsopen)},
        {CALL(fsconfig)},
        {CALL(fsmount)},
        {CALL(fspick)},
        {CALL(pivot_root)},
        {CALL(chroot)},
        {CALL(setns)},
        {CALL(unshare)},
        {CALL(name_to_handle_at)},
        {CALL(open_by_handle_at)},
        {CALL(fanotify_init)},
        {CALL(mknodat)},
#ifdef SYS_mknod
        {CALL(mknod)},
#endif
        {CALL(quotactl)},
        {CALL(quotactl_fd)},
        {CALL(init_module)},
        {CALL(finit_module)},
        {CALL(delete_module)},
        {CALL(kexec_load)},
        {CALL(kexec_file_load)},
        {CALL(reboot)},
        {CALL(swapon)},
        {CALL(swapoff)},
        {CALL(acct)},
        {CALL(syslog)},
        {CALL(vhangup)},
        {CALL(sethostname)},
        {CALL(setdomainname)},
        {CALL(settimeofday)},
        {CALL(clock_settime)},
        {CALL(adjtimex)},
        {CALL(clock_adjtime)},
        {CALL(setuid)},
        {CALL(setgid)},
        {CALL(setreuid)},
        {CALL(setregid)},
        {CALL(setresuid)},
        {CALL(setresgid)},
        {CALL(setfsuid)},
        {CALL(setfsgid)},
        {CALL(setgroups)},
        {CALL(capset)},
        {CALL(ioctl), EPERM, {invalid, TIOCSTI, invalid}},
        {CALL(ioctl), EPERM, {invalid, TIOCLINUX, invalid}},
        {"socket of another family", SYS_socket, EAFNOSUPPORT, {AF_PACKET, SOCK_RAW, 0}},
        {"socket of the kernel, not about routes",
         SYS_socket,
         EAFNOSUPPORT,
         {AF_NETLINK, SOCK_RAW, NETLINK_KOBJECT_UEVENT}},
        {"socketpair of another family", SYS_socketpair, EAFNOSUPPORT, {AF_INET, SOCK_STREAM, 0}},
    };
    return all;
}

const std::vector<Attempt>& internetAttempts() {
    static const std::vector<Attempt> all{
        {"socket of the internet", SYS_socket, EAFNOSUPPORT, {AF_INET, SOCK_STREAM, 0}},
        {"socket of the internet, version 6", SYS_socket, EAFNOSUPPORT, {AF_INET6, SOCK_DGRAM, 0}},
    };
    return all;
}

const std::vector<Attempt>& runningAttempts() {
    static const std::vector<Attempt> all = [] {
        std::vector<Attempt> both = internetAttempts();
        both.push_back({CALL(listen)});
        return both;
    }();
    return all;
}

#undef CALL

int errorOf(const Attempt& attempt) {
    errno = 0;
    const auto& [first, second, third] = attempt.arguments;
    const pid_t self = ::getpid();
    const long result = ::syscall(attempt.number, first, second, third, invalid, invalid);
    if (::getpid() != self) ::_exit(0);  // a child that should never have been
    return result == -1 ? errno : 0;
}

int inChild(const std::function<int()>& body) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::setsid();
        ::_exit(body());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? 1000 + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace vantor
