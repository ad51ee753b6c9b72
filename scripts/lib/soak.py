"""soak.py PROGRAM MINUTES APART: see scripts/soak. APART is 0 where links and mounts may not be made."""
import os
import re
import shutil
import signal
import sys
import tempfile
import time

from soak_controls import Controls, NotSeen
from soak_desktop import Desktop, Unrest, quietly
from soak_user import User

PROGRAM, MINUTES, APART = sys.argv[1], float(sys.argv[2]), sys.argv[3] != "0"
# Seconds until the program has been everywhere once; in a long run until its caches are full.
SETTLING = max(20.0, min(300.0, MINUTES * 60 / 4))
REST = 1.0
PAGE = 4  # kilobytes


class Watched:
    """What is seen of the program from outside."""

    def __init__(self, pid):
        self.folder = "/proc/%d" % pid
        self.ticks = 0
        self.waits = {}

    def count_ticks(self):
        """Passes so far. The thread of the processor's provider waits once for each: a wait is a switch
        that it asked for itself, which the kernel counts. Pauses and refused passes are not in it."""
        for thread in os.listdir(self.folder + "/task"):
            try:
                with open("%s/task/%s/comm" % (self.folder, thread)) as file:
                    if file.read() != "cpu\n":
                        continue
                with open("%s/task/%s/status" % (self.folder, thread)) as file:
                    waits = int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", file.read(), re.M).group(1))
            except OSError:
                continue  # it ended meanwhile
            self.ticks += waits - self.waits.get(thread, 0)
            self.waits[thread] = waits
        return self.ticks

    def look(self):
        """(ticks, kilobytes of its own, open files, threads)"""
        with open(self.folder + "/smaps_rollup") as file:
            rollup = file.read()
        memory = sum(int(x) for x in re.findall(r"^(?:Private_Dirty|Swap):\s+(\d+)", rollup, re.M))
        return (self.count_ticks(), memory, len(os.listdir(self.folder + "/fd")),
                len(os.listdir(self.folder + "/task")))


def slope(points):
    """Least squares: how much the second grows for each one of the first."""
    count = len(points)
    x = sum(p[0] for p in points) / count
    y = sum(p[1] for p in points) / count
    return sum((p[0] - x) * (p[1] - y) for p in points) / sum((p[0] - x) ** 2 for p in points)


def lowest(points, parts):
    """The least of each part of the time: what was only held for a moment is not in it."""
    size = len(points) // parts
    return [min(points[i * size:(i + 1) * size], key=lambda p: p[1]) for i in range(parts)]


def verdict(name, seen, allowed, passes):
    print("%-44s %-32s %-22s %s" % (name, seen, allowed, "ok" if passes else "TOO MUCH"))
    return passes


def allowed_pages(ticks):
    """Pages a thousand ticks that may be seen over so many ticks.

    For good: 8, a page a minute at the shortest interval, which the breakage of a heap may cost. On top of
    it what fills: caches, windows that open for the first time, and what the toolkit keeps for assistive
    technology. That was 380 pages in all, ten of them after the first four hundred ticks, so that what it
    adds to the slope falls with the square of the time. A minute therefore finds a leak of ten kilobytes
    a tick, ten minutes one of two hundred bytes."""
    return 8 + 400 * 120 * 1000 / ticks ** 2


def judge(looks):
    ticks = looks[-1][0] - looks[0][0]
    memory = [(look[0] / 1000, look[1] / PAGE) for look in looks]
    growth = slope(lowest(memory, min(20, max(4, len(memory) // 6))))
    allowed = allowed_pages(ticks)
    half = len(looks) // 2
    print("%-44s %-32s %-22s %s" % ("", "seen", "allowed", "verdict"))
    good = [verdict("memory of its own, pages a thousand ticks", "%.1f (%d to %d kilobytes)" % (
        growth, min(look[1] for look in looks), max(look[1] for look in looks)), "%.1f" % allowed,
        growth <= allowed)]
    for name, place in (("open files", 2), ("threads", 3)):
        before = max(look[place] for look in looks[:half])
        after = max(look[place] for look in looks[half:])
        good.append(verdict("most %s, second half of the time" % name, after, "%d, as in the first" % before,
                            after <= before + 1))
    return all(good)


def soak(program, user, unrest):
    """Acts and looks until the time is over; the looks."""
    watched, looks = Watched(program.pid), []
    start = time.monotonic()
    while time.monotonic() < start + SETTLING + MINUTES * 60 or len(looks) < 12:
        unrest.stir()
        user.act()
        # Several looks between two acts: what is least among them is at rest.
        for _ in range(2):
            time.sleep(REST)
            if program.poll() is not None:
                sys.exit("vantor: the program ended by itself (%d)" % program.returncode)
            if time.monotonic() - start > SETTLING:
                looks.append(watched.look())
    acts = ", ".join("%s %d" % (name.replace("_", " "), count) for name, count in user.done.items())
    print("%d acts (%s), %d settings seen in the file, %d looks, %d ticks" % (
        sum(user.done.values()), acts, user.settings_written, len(looks), looks[-1][0] - looks[0][0]))
    missing = [name for name, count in user.done.items() if count == 0]
    if missing:
        sys.exit("vantor: there was no time for %s: this tells too little" % ", ".join(missing))
    return looks


def main():
    folder = tempfile.mkdtemp(prefix="vantor-soak-")
    settings = folder + "/.config/vantor/settings.ini"
    os.makedirs(os.path.dirname(settings))
    with open(settings, "w") as file:
        file.write("[General]\nappearance=dark\nrefreshInterval=0.5\nincludePointToPointInterfaces=true\n")
    if APART:
        quietly("ip", "link", "set", "lo", "up")
    desktop, unrest = Desktop(folder), Unrest(folder, APART)
    program = desktop.start(PROGRAM)
    try:
        time.sleep(8)  # by then its icon is in the tray, too
        try:
            controls = Controls(desktop.env, "vantor")
        except NotSeen as missed:
            sys.exit("vantor: %s" % missed)
        looks = soak(program, User(desktop, controls, settings, unrest.NAMES), unrest)
        passes = judge(looks)
        program.send_signal(signal.SIGTERM)
        if program.wait(10) != 0:
            sys.exit("vantor: it did not end as it should (%d)" % program.returncode)
        if not passes:
            sys.exit("vantor: it grows")
    finally:
        unrest.end()
        desktop.end()
        shutil.rmtree(folder, ignore_errors=True)


main()
