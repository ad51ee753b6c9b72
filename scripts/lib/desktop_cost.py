"""What the program costs on a desktop, beside an empty window of the toolkit: of a processor and of memory."""
import os
import re
import time

SETTLING = 10
WATCHING = 40


def nanoseconds_of(pid):
    """What all threads of a process have spent, living and dead (posix-timers.h)."""
    return time.clock_gettime_ns((~pid << 3) | 2)


def all_clocks():
    """Of every process of the session, which has a namespace of its own; not the one that measures."""
    clocks = {}
    for name in os.listdir("/proc"):
        if not name.isdigit() or int(name) == os.getpid():
            continue
        try:
            clocks[int(name)] = nanoseconds_of(int(name))
        except OSError:  # it has ended
            continue
    return clocks


def megabytes_of(pid):
    with open("/proc/%d/smaps_rollup" % pid) as file:
        return int(re.search(r"^Pss:\s+(\d+)", file.read(), re.M).group(1)) / 1024


def watch(desktop, command):
    """(percent of a processor, percent of the rest of the desktop, MB) of a program that is started for it."""
    program = desktop.start(*command)
    try:
        time.sleep(SETTLING)
        start, before = time.monotonic_ns(), all_clocks()
        time.sleep(WATCHING)
        after, passed = all_clocks(), time.monotonic_ns() - start
        spent = {pid: 100 * (clock - before.get(pid, 0)) / passed for pid, clock in after.items()}
        own = spent.pop(program.pid)
        return own, sum(spent.values()), megabytes_of(program.pid)
    finally:
        program.terminate()
        program.wait()
        time.sleep(2)


def report(desktop, empty_window):
    """A line for each of them."""
    print("  %-22s %14s %22s %10s" % ("", "processor, %", "the rest of it all, %", "memory, MB"))
    for name, command, interval in (("an empty window", [empty_window], None), ("visible, 1.0 s", ["vantor"], 1.0),
                                    ("visible, 0.5 s", ["vantor"], 0.5), ("an empty window", [empty_window], None)):
        if interval:
            with open(desktop.env["XDG_CONFIG_HOME"] + "/vantor/settings.ini", "w") as file:
                file.write("[General]\nappearance=system\nrefreshInterval=%s\n" % interval)
        print("  %-22s %14.3f %22.2f %10.1f" % (name, *watch(desktop, command)), flush=True)
