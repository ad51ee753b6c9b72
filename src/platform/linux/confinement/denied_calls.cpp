#include "platform/linux/confinement/denied_calls.h"

#include <linux/netlink.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>

#include <cerrno>

namespace vantor {

namespace {

using DeniedWhen = ArgumentTest::Holds;

// Names of different length are one thing to read down: the call and its number.
#define VANTOR_CALL(name) #name, SYS_##name, EPERM
// Newer than the headers that the program may be compiled with; alike on all architectures.
constexpr std::uint32_t openTreeAttributes = 467;

constexpr std::array deniedOfClone{ArgumentTest{0, DeniedWhen::withoutTheBit, CLONE_THREAD}};
constexpr std::array signalledOthers{ArgumentTest{0, DeniedWhen::whenOtherProcess, 0}};
constexpr std::array pushedInput{ArgumentTest{1, DeniedWhen::whenEqual, TIOCSTI}};
constexpr std::array consoleSelection{ArgumentTest{1, DeniedWhen::whenEqual, TIOCLINUX}};
constexpr std::array otherFamilies{ArgumentTest{0, DeniedWhen::whenDifferent, AF_UNIX},
                                   ArgumentTest{0, DeniedWhen::whenDifferent, AF_NETLINK},
                                   ArgumentTest{0, DeniedWhen::whenDifferent, AF_INET},
                                   ArgumentTest{0, DeniedWhen::whenDifferent, AF_INET6}};
constexpr std::array notRoutes{ArgumentTest{0, DeniedWhen::whenEqual, AF_NETLINK},
                               ArgumentTest{2, DeniedWhen::whenDifferent, NETLINK_ROUTE}};
constexpr std::array pairsNotLocal{ArgumentTest{0, DeniedWhen::whenDifferent, AF_UNIX}};
constexpr std::array internet4{ArgumentTest{0, DeniedWhen::whenEqual, AF_INET}};
constexpr std::array internet6{ArgumentTest{0, DeniedWhen::whenEqual, AF_INET6}};

constexpr DeniedCall deniedEarly[] = {
    // Other programs and processes. A C library that is told that there is no clone3 makes its
    // threads with clone, whose arguments can be seen.
    {VANTOR_CALL(execve)},
    {VANTOR_CALL(execveat)},
#ifdef SYS_fork
    {VANTOR_CALL(fork)},
    {VANTOR_CALL(vfork)},
#endif
    {VANTOR_CALL(clone), deniedOfClone},
    {"clone3", SYS_clone3, ENOSYS},
    {VANTOR_CALL(ptrace)},
    {VANTOR_CALL(process_vm_readv)},
    {VANTOR_CALL(process_vm_writev)},
    {VANTOR_CALL(process_madvise)},
    {VANTOR_CALL(pidfd_getfd)},
    {VANTOR_CALL(pidfd_send_signal)},
    {VANTOR_CALL(kill), signalledOthers},
    {VANTOR_CALL(tgkill), signalledOthers},
    {VANTOR_CALL(rt_sigqueueinfo), signalledOthers},
    {VANTOR_CALL(rt_tgsigqueueinfo), signalledOthers},
    {VANTOR_CALL(tkill)},
    {VANTOR_CALL(kcmp)},
    {VANTOR_CALL(personality)},
    // Parts of the kernel that no dashboard needs and that have had more than their share of
    // mistakes.
    {VANTOR_CALL(bpf)},
    {VANTOR_CALL(perf_event_open)},
    {VANTOR_CALL(userfaultfd)},
    {VANTOR_CALL(io_uring_setup)},
    {VANTOR_CALL(io_uring_enter)},
    {VANTOR_CALL(io_uring_register)},
    {VANTOR_CALL(add_key)},
    {VANTOR_CALL(request_key)},
    {VANTOR_CALL(keyctl)},
#ifdef SYS_modify_ldt
    {VANTOR_CALL(modify_ldt)},
    {VANTOR_CALL(iopl)},
    {VANTOR_CALL(ioperm)},
#endif
    // Mounts, namespaces and ways round the folders of a path.
    {VANTOR_CALL(mount)},
    {VANTOR_CALL(umount2)},
    {VANTOR_CALL(move_mount)},
    {VANTOR_CALL(mount_setattr)},
    {VANTOR_CALL(open_tree)},
    {"open_tree_attr", openTreeAttributes, EPERM},
    {VANTOR_CALL(fsopen)},
    {VANTOR_CALL(fsconfig)},
    {VANTOR_CALL(fsmount)},
    {VANTOR_CALL(fspick)},
    {VANTOR_CALL(pivot_root)},
    {VANTOR_CALL(chroot)},
    {VANTOR_CALL(setns)},
    {VANTOR_CALL(unshare)},
    {VANTOR_CALL(name_to_handle_at)},
    {VANTOR_CALL(open_by_handle_at)},
    {VANTOR_CALL(fanotify_init)},
    {VANTOR_CALL(mknodat)},
#ifdef SYS_mknod
    {VANTOR_CALL(mknod)},
#endif
    {VANTOR_CALL(quotactl)},
    {VANTOR_CALL(quotactl_fd)},
    // The machine as a whole.
    {VANTOR_CALL(init_module)},
    {VANTOR_CALL(finit_module)},
    {VANTOR_CALL(delete_module)},
    {VANTOR_CALL(kexec_load)},
    {VANTOR_CALL(kexec_file_load)},
    {VANTOR_CALL(reboot)},
    {VANTOR_CALL(swapon)},
    {VANTOR_CALL(swapoff)},
    {VANTOR_CALL(acct)},
    {VANTOR_CALL(syslog)},
    {VANTOR_CALL(vhangup)},
    {VANTOR_CALL(sethostname)},
    {VANTOR_CALL(setdomainname)},
    {VANTOR_CALL(settimeofday)},
    {VANTOR_CALL(clock_settime)},
    {VANTOR_CALL(adjtimex)},
    {VANTOR_CALL(clock_adjtime)},
    // Another user.
    {VANTOR_CALL(setuid)},
    {VANTOR_CALL(setgid)},
    {VANTOR_CALL(setreuid)},
    {VANTOR_CALL(setregid)},
    {VANTOR_CALL(setresuid)},
    {VANTOR_CALL(setresgid)},
    {VANTOR_CALL(setfsuid)},
    {VANTOR_CALL(setfsgid)},
    {VANTOR_CALL(setgroups)},
    {VANTOR_CALL(capset)},
    // Typing on the terminal that the program was started from.
    {VANTOR_CALL(ioctl), pushedInput},
    {VANTOR_CALL(ioctl), consoleSelection},
    // A socket is of this machine, or asks the kernel about its network.
    {"socket of another family", SYS_socket, EAFNOSUPPORT, otherFamilies},
    {"socket of the kernel, not about routes", SYS_socket, EAFNOSUPPORT, notRoutes},
    {"socketpair of another family", SYS_socketpair, EAFNOSUPPORT, pairsNotLocal},
};

constexpr DeniedCall deniedWithLocalDisplay[] = {
    {"socket of the internet", SYS_socket, EAFNOSUPPORT, internet4},
    {"socket of the internet, version 6", SYS_socket, EAFNOSUPPORT, internet6},
};

constexpr DeniedCall deniedWhenRunning[] = {
    {"socket of the internet", SYS_socket, EAFNOSUPPORT, internet4},
    {"socket of the internet, version 6", SYS_socket, EAFNOSUPPORT, internet6},
};

constexpr DeniedCall deniedAfterListening[] = {
    {VANTOR_CALL(listen)},
};

#undef VANTOR_CALL

}  // namespace

std::span<const DeniedCall> callsDeniedEarly() {
    return deniedEarly;
}

std::span<const DeniedCall> callsDeniedWithLocalDisplay() {
    return deniedWithLocalDisplay;
}

std::span<const DeniedCall> callsDeniedWhenRunning() {
    return deniedWhenRunning;
}

std::span<const DeniedCall> callsDeniedAfterListening() {
    return deniedAfterListening;
}

}  // namespace vantor
