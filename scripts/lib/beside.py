"""beside.py PROGRAM BENCHMARKS ROUNDS: the whole program beside monitors of the terminal and an empty window.

Each has an X server, a window manager and a home of its own, so that what the server draws for it counts for
it. They run in turns, as each is a process that the other would have to show."""
import os
import re
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

PROGRAM, BENCHMARKS, ROUNDS = sys.argv[1], sys.argv[2], int(sys.argv[3])
SETTLING = 8
WATCHING = 30
STARTS = 9
MANY = 3000
# Of the size of the program's window, with the fonts that every X server has.
TERMINAL = ["xterm", "-fn", "8x16", "-geometry", "159x50", "-e"]


def clock_of(pid):
    """The kernel's clock of all threads of a process, living and dead (posix-timers.h)."""
    return (~pid << 3) | 2


def children_of(pid):
    with open("/proc/%d/task/%d/children" % (pid, pid)) as file:
        return [int(text) for text in file.read().split()]


class Desktop:
    """An X server with a window manager, until `end`."""

    def __init__(self):
        self.home = tempfile.mkdtemp(prefix="vantor-beside-")
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1440x960x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as file:
            self.display = ":" + file.readline().strip()
        self.env = {"PATH": os.environ["PATH"], "HOME": self.home, "XDG_CONFIG_HOME": self.home + "/.config",
                    "XDG_RUNTIME_DIR": self.home, "LANG": "C.UTF-8", "TERM": "xterm-256color",
                    "DISPLAY": self.display, "FONTCONFIG_FILE": os.environ["FONTCONFIG_FILE"]}
        self.others = []
        ready = self.home + "/ready"
        self.also("openbox", "--startup", "touch " + ready)
        end = time.monotonic() + 10
        while not os.path.exists(ready) and time.monotonic() < end:
            time.sleep(0.05)

    def also(self, *command):
        self.others.append(subprocess.Popen(command, env=self.env, stdin=subprocess.DEVNULL,
                                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))

    def write(self, path, text):
        os.makedirs(os.path.dirname(self.home + "/" + path), exist_ok=True)
        with open(self.home + "/" + path, "w") as file:
            file.write(text)

    def end(self):
        for process in self.others + [self.server]:
            process.terminate()
            process.wait()
        shutil.rmtree(self.home, ignore_errors=True)


class Contender:
    """A program that runs on a desktop of its own, until `end`."""

    def __init__(self, name, interval):
        self.name = name
        self.desktop = Desktop()
        self.desktop.write(".config/vantor/settings.ini",
                           "[General]\nappearance=dark\nrefreshInterval=%s\n" % interval)
        self.desktop.write(".config/btop/btop.conf", "update_ms = %d\n" % (interval * 1000))
        if name == "hidden":
            self.desktop.also("trayer", "--edge", "top", "--align", "right")
            time.sleep(1)
        command = {"visible": [PROGRAM], "hidden": [PROGRAM, "--background"],
                   "empty": [BENCHMARKS + "/empty_window"], "btop": TERMINAL + ["btop"],
                   "htop": TERMINAL + ["htop", "-d", str(int(interval * 10))]}[name]
        self.process = subprocess.Popen(command, env=self.desktop.env, stdin=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)

    def settle(self):
        """The monitor itself is the terminal's child."""
        in_terminal = self.name in ("htop", "btop")
        self.monitor = children_of(self.process.pid)[0] if in_terminal else self.process.pid
        self.pids = {self.process.pid, self.monitor, self.desktop.server.pid}

    def clock(self):
        return sum(time.clock_gettime_ns(clock_of(pid)) for pid in self.pids)

    def memory(self):
        with open("/proc/%d/smaps_rollup" % self.monitor) as file:
            return int(re.search(r"^Pss:\s+(\d+)", file.read(), re.M).group(1)) / 1024

    def end(self):
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.desktop.end()


def watch(names, interval):
    """name: (percent of a processor, MB), one after the other."""
    found = {}
    for name in names:
        one = Contender(name, interval)
        try:
            time.sleep(SETTLING)
            one.settle()
            start, before = time.monotonic(), one.clock()
            time.sleep(WATCHING)
            passed = (time.monotonic() - start) * 1e9
            found[name] = (100 * (one.clock() - before) / passed, one.memory())
        finally:
            one.end()
    return found


def report(title, rounds, beside):
    """A line for each contender: its figures of all rounds, and their ratios to those of `beside`."""
    print("\n%-34s %-26s %-22s %s" % (title, "processor, %", "to " + beside, "memory, MB"))
    for name in rounds[0]:
        shares = [one[name][0] for one in rounds]
        ratios = [one[name][0] / one[beside][0] for one in rounds if one[beside][0] > 0]
        print("%-34s %-26s %-22s %.1f" % (name, ", ".join("%.3f" % share for share in shares),
                                          ", ".join("%.2f" % ratio for ratio in ratios),
                                          statistics.median(one[name][1] for one in rounds)), flush=True)


def crowded(rounds):
    crowd = subprocess.Popen([BENCHMARKS + "/sleeping_crowd", str(MANY)], stdin=subprocess.PIPE,
                             stdout=subprocess.PIPE)
    try:
        if crowd.stdout.readline() != b"ready\n":
            print("Left out: %d processes are not allowed here" % MANY)
            return
        report("1.0 s, %d more processes" % MANY, [watch(["visible", "btop"], 1.0) for _ in range(rounds)], "btop")
    finally:
        crowd.stdin.close()
        crowd.wait()


def starts():
    """From exec to content, in turns; each on a screen that nothing else draws on."""
    desktop = Desktop()
    desktop.write(".config/vantor/settings.ini", "[General]\nappearance=dark\n")
    found = {"empty": [], "visible": []}
    try:
        for _ in range(STARTS):
            for name, colours, program in (("empty", "1", BENCHMARKS + "/empty_window"), ("visible", "16", PROGRAM)):
                said = subprocess.run([BENCHMARKS + "/first_content", colours, program], env=desktop.env,
                                      stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
                found[name].append(float(said))
                time.sleep(0.5)
    finally:
        desktop.end()
    median = {name: statistics.median(times) for name, times in found.items()}
    print("\nexec to content, ms (median of %d): empty %.1f, visible %.1f, ratio %.2f" % (
        STARTS, median["empty"], median["visible"], median["visible"] / median["empty"]), flush=True)


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("beside: ended"))
    starts()
    report("1.0 s", [watch(["visible", "hidden", "htop", "empty"], 1.0) for _ in range(ROUNDS)], "htop")
    report("0.5 s", [watch(["visible", "hidden", "htop"], 0.5) for _ in range(ROUNDS)], "htop")
    crowded(ROUNDS)


main()
