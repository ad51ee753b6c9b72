"""scale.py PROGRAM BENCHMARKS KIND COUNT: one step of scripts/scale, on the DISPLAY of the environment.

Surrounds itself with so many processes, links or mounts, starts the program at its shortest interval and
watches it, while others let the kernel alone answer what the program asks: at the same time, as the speed of a
machine may change within a minute. Prints one row of build/scale.tsv. Links and mounts are made where this
process is: in namespaces that end with it."""
import ctypes
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

PROGRAM, BENCHMARKS, KIND, COUNT = sys.argv[1], sys.argv[2], sys.argv[3], int(sys.argv[4])
LIBC = ctypes.CDLL(None, use_errno=True)
INTERVAL = 0.5
SETTLING = 5
# Volumes are asked for every 15 seconds: two whole periods.
WATCHING = {"processes": 15, "links": 15, "mounts": 30}[KIND]
LISTENING = 10
# The program lists /proc every half a minute only: the clocks are asked for without that as well.
ASKINGS = {"processes": ["clocks", "known-clocks"], "links": ["links"], "mounts": ["mounts"]}[KIND]


def clock_of(pid):
    """The kernel's clock of all threads of a process, living and dead (posix-timers.h)."""
    return (~pid << 3) | 2


class Crowd:
    """What the program is surrounded with, until `end`."""

    def __init__(self, folder):
        self.process = None
        self.mounts = []
        {"processes": self.sleep, "links": self.link, "mounts": self.mount}[KIND](folder)

    def sleep(self, _):
        self.process = subprocess.Popen([BENCHMARKS + "/sleeping_crowd", str(COUNT)], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE)
        if self.process.stdout.readline() != b"ready\n":
            self.end()
            sys.exit("scale: so many processes are not allowed here")

    def link(self, _):
        with open("/proc/sys/net/ipv6/conf/default/disable_ipv6", "w") as file:
            file.write("1")  # or each would send by itself
        lines = ["link set lo up"]
        for i in range(COUNT // 2):
            lines.append("link add scale%d type veth peer name other%d" % (i, i))
            for network, name in ((1, "scale"), (2, "other")):
                lines.append("address add 10.%d.%d.%d/32 dev %s%d" % (network, i // 250, i % 250 + 1, name, i))
                lines.append("link set %s%d up" % (name, i))
        subprocess.run(["ip", "-batch", "-"], input="\n".join(lines) + "\n", text=True, check=True)

    def mount(self, folder):
        for i in range(COUNT):
            place = ("%s/mount%d" % (folder, i)).encode()
            os.mkdir(place)
            if LIBC.mount(b"scale", place, b"tmpfs", 0, b"size=16k,nr_inodes=4") != 0:
                error = os.strerror(ctypes.get_errno())
                self.end()
                sys.exit("scale: mount %d: %s" % (i, error))
            self.mounts.append(place)

    def end(self):
        if self.process:
            self.process.stdin.close()
            self.process.wait()
        for place in self.mounts:
            LIBC.umount2(place, 0)


class Program:
    """The program with its window, until `end`."""

    def __init__(self, folder):
        os.makedirs(folder + "/.config/vantor")
        with open(folder + "/.config/vantor/settings.ini", "w") as file:
            file.write("[General]\nappearance=dark\nrefreshInterval=%s\n" % INTERVAL)
        env = {"PATH": os.environ["PATH"], "HOME": folder, "XDG_CONFIG_HOME": folder + "/.config",
               "XDG_RUNTIME_DIR": folder, "LANG": "C.UTF-8", "DISPLAY": os.environ["DISPLAY"],
               "FONTCONFIG_FILE": os.environ["FONTCONFIG_FILE"]}
        self.process = subprocess.Popen([PROGRAM], env=env, stdin=subprocess.DEVNULL)
        self.pid = self.process.pid
        self.window = self.live_window()

    def live_window(self):
        """With live figures the name that it goes by when minimised changes."""
        end = time.monotonic() + 60
        while time.monotonic() < end and self.process.poll() is None:
            for window in re.findall(r"^ +(0x[0-9a-f]+) ", said("xwininfo", "-root", "-children"), re.M):
                known = said("xprop", "-id", window, "_NET_WM_PID", "_NET_WM_ICON_NAME")
                if "= %d\n" % self.pid in known and '= "Vantor"\n' in known:
                    return window
            time.sleep(0.2)
        self.end()
        sys.exit("scale: the program did not come to live figures")

    def main_thread(self):
        """Nanoseconds for which its main thread has run."""
        with open("/proc/%d/schedstat" % self.pid) as file:
            return int(file.read().split()[0])

    def shares(self):
        """Percent of one processor, of the program and of its main thread."""
        clock, start = clock_of(self.pid), time.monotonic()
        before = (time.clock_gettime_ns(clock), self.main_thread())
        time.sleep(WATCHING)
        after = (time.clock_gettime_ns(clock), self.main_thread())
        passed = (time.monotonic() - start) * 1e9
        return [100 * (b - a) / passed for a, b in zip(before, after)]

    def memory(self):
        with open("/proc/%d/smaps_rollup" % self.pid) as file:
            return int(re.search(r"^Pss:\s+(\d+)", file.read(), re.M).group(1))

    def silence(self):
        """(milliseconds, milliseconds that were taken off because others had the processor)"""
        row = said(BENCHMARKS + "/longest_silence", self.window, str(self.pid), str(LISTENING)).split()
        if not row or int(row[2]) == 0:
            self.end()
            sys.exit("scale: the window did not answer")
        return float(row[0]), float(row[1])

    def end(self):
        self.process.send_signal(signal.SIGTERM)
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()


def said(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout


class BareAsking:
    """One of the benchmark's askings, for as long as the program is watched."""

    def __init__(self, kind):
        rounds = round(WATCHING / INTERVAL)
        self.process = subprocess.Popen([BENCHMARKS + "/bare_asking", kind, str(rounds)],
                                        stdout=subprocess.PIPE, text=True)

    def percent(self):
        asked = self.process.communicate()[0].split()
        if not asked:
            sys.exit("scale: the kernel did not answer")
        return "%.3f" % (100 * float(asked[0]) / INTERVAL)


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("scale: ended"))
    folder = tempfile.mkdtemp(prefix="vantor-scale-")
    crowd = None
    try:
        crowd = Crowd(folder)
        time.sleep(2)
        program = Program(folder)
        try:
            time.sleep(SETTLING)
            askings = [BareAsking(kind) for kind in ASKINGS]
            whole, main_thread = program.shares()
            bare = [asking.percent() for asking in askings] + ["-"]
            memory = program.memory()
            silence, others = program.silence()
        finally:
            program.end()
        print("%s\t%d\t%.3f\t%.3f\t%s\t%s\t%d\t%.1f\t%.1f" % (
            KIND, COUNT, whole, main_thread, bare[0], bare[1], memory, silence, others))
    finally:
        if crowd:
            crowd.end()
        shutil.rmtree(folder, ignore_errors=True)


main()
