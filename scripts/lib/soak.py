"""soak.py PROGRAM MINUTES APART: see scripts/soak. APART is 0 where links and mounts may not be made."""
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

PROGRAM, MINUTES, APART = sys.argv[1], float(sys.argv[2]), sys.argv[3] != "0"
SCREEN = (1366, 900)
# Seconds until the program has been everywhere once; in a long run until its caches are full.
SETTLING = max(20.0, min(300.0, MINUTES * 60 / 4))
LOOK_EVERY = 2.0
PAGE = 4  # kilobytes
OPENBOX = """<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc"><keyboard>
<keybind key="A-F4"><action name="Close"/></keybind></keyboard></openbox_config>"""


def quietly(*command, env=None):
    return subprocess.run(command, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


class Desktop:
    """A virtual screen with a window manager, a session bus and a tray."""

    def __init__(self, folder):
        self.processes = []
        os.makedirs(folder + "/.config/openbox")
        with open(folder + "/.config/openbox/rc.xml", "w") as file:
            file.write(OPENBOX)
        self.env = {"PATH": os.environ["PATH"], "HOME": folder, "XDG_CONFIG_HOME": folder + "/.config",
                    "XDG_RUNTIME_DIR": folder, "LANG": "C.UTF-8"}
        reader, writer = os.pipe()
        self.start("Xvfb", "-displayfd", str(writer), "-screen", "0", "%dx%dx24" % SCREEN, "-nolisten", "tcp",
                   "-noreset", pass_fds=(writer,))
        self.env["DISPLAY"] = ":" + os.read(reader, 16).decode().strip()
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1", stdout=subprocess.PIPE)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        # A window that asks to be shown before it is ready never is.
        self.start("openbox", "--startup", "touch '%s/window-manager-is-ready'" % folder)
        for _ in range(200):
            if os.path.exists(folder + "/window-manager-is-ready"):
                break
            time.sleep(0.05)
        else:
            raise SystemExit("the window manager did not start")
        # At the bottom in the middle.
        self.start("trayer", "--edge", "bottom", "--align", "center", "--widthtype", "request", "--height", "24")
        time.sleep(1)

    def start(self, *command, stdout=subprocess.DEVNULL, pass_fds=()):
        process = subprocess.Popen(command, env=self.env, stdin=subprocess.DEVNULL, stdout=stdout,
                                   stderr=subprocess.DEVNULL, pass_fds=pass_fds)
        self.processes.append(process)
        return process

    def do(self, *xdotool):
        quietly("xdotool", *map(str, xdotool), env=self.env)

    def windows(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "vantor"], env=self.env,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        return found.stdout.split()

    def press_icon(self):
        self.do("mousemove", SCREEN[0] // 2, SCREEN[1] - 12, "click", "1")

    def end(self):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()


class Unrest:
    """What comes and goes around the program."""

    def __init__(self, folder):
        self.random = random.Random(1)
        self.folder = folder
        self.children = []
        self.links, self.mounts = 0, 0

    def processes(self):
        for _ in range(self.random.randint(20, 120)):
            self.children.append(subprocess.Popen(["sleep", "600"]))
        while len(self.children) > 200:
            child = self.children.pop(self.random.randrange(len(self.children)))
            child.kill()
            child.wait()

    def network(self):
        if not APART:
            return
        if self.links < 12 and self.random.random() < 0.6:
            name = "soak%d" % self.links
            if quietly("ip", "link", "add", name, "type", "veth", "peer", "name", name + "p"):
                quietly("ip", "address", "add", "10.9.%d.1/24" % self.links, "dev", name)
                quietly("ip", "link", "set", name, "up")
                quietly("ip", "link", "set", name + "p", "up")
                self.links += 1
        elif self.links:
            self.links -= 1
            quietly("ip", "link", "delete", "soak%d" % self.links)

    def volumes(self):
        if not APART:
            return
        if self.mounts < 12 and self.random.random() < 0.6:
            place = "%s/mount%d" % (self.folder, self.mounts)
            os.makedirs(place, exist_ok=True)
            if quietly("mount", "-t", "tmpfs", "-o", "size=1m", "soak", place):
                self.mounts += 1
        elif self.mounts:
            self.mounts -= 1
            quietly("umount", "%s/mount%d" % (self.folder, self.mounts))

    def end(self):
        for child in self.children:
            child.kill()
            child.wait()
        while self.mounts:
            self.mounts -= 1
            quietly("umount", "%s/mount%d" % (self.folder, self.mounts))


class User:
    """Opens and closes what there is; one act at a time, and at rest in between."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.acts = [self.panel, self.settings, self.scroll, self.search, self.into_the_tray, self.pause]
        self.next = 0

    def act(self):
        self.acts[self.next % len(self.acts)]()
        self.next += 1

    def panel(self):
        self.desktop.press_icon()
        time.sleep(0.8)
        self.desktop.do("key", "Escape")

    def settings(self):
        self.desktop.do("key", "ctrl+comma")
        time.sleep(0.5)
        # The history's length and the links between two points, there and back.
        self.desktop.do("key", "Tab", "Tab", "Up", "Down", "Tab", "space", "space")
        self.desktop.do("key", "Escape")

    def scroll(self):
        self.desktop.do("mousemove", SCREEN[0] // 2, SCREEN[1] // 2)
        self.desktop.do("click", "--repeat", "12", "--delay", "30", "5")
        self.desktop.do("click", "--repeat", "12", "--delay", "30", "4")

    def search(self):
        self.desktop.do("key", "ctrl+f")
        self.desktop.do("type", "--delay", "60", "sleep")
        time.sleep(0.5)
        self.desktop.do("key", "ctrl+a", "Delete")

    def into_the_tray(self):
        self.desktop.do("key", "alt+F4")
        time.sleep(1.5)
        self.desktop.press_icon()
        time.sleep(0.5)
        self.desktop.do("key", "Return")

    def pause(self):
        self.desktop.do("key", "ctrl+r")


def look(pid):
    with open("/proc/%d/smaps_rollup" % pid) as file:
        rollup = file.read()
    memory = sum(int(x) for x in re.findall(r"^(?:Private_Dirty|Swap):\s+(\d+)", rollup, re.M))
    return memory, len(os.listdir("/proc/%d/fd" % pid)), len(os.listdir("/proc/%d/task" % pid))


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
    print("%-44s %-30s %-22s %s" % (name, seen, allowed, "ok" if passes else "TOO MUCH"))
    return passes


def judge(looks):
    memory = [(at / 60, kilobytes) for at, (kilobytes, _, _) in looks]
    growth = slope(lowest(memory, min(20, max(4, len(memory) // 6))))
    # One page a minute, if it was watched for long. In a few minutes caches still fill, by some
    # hundred kilobytes in all, and a slope tells of a coarse leak only.
    allowed = PAGE + 150 * PAGE / (memory[-1][0] - memory[0][0]) ** 2
    half = len(looks) // 2
    print("%-44s %-30s %-22s %s" % ("", "seen", "allowed", "verdict"))
    good = [verdict("memory of its own, kilobytes a minute", "%.1f (%d to %d in all)" % (
        growth, min(m for _, m in memory), max(m for _, m in memory)), "%.1f" % allowed, growth <= allowed)]
    for name, place in (("open files", 1), ("threads", 2)):
        before = max(numbers[place] for _, numbers in looks[:half])
        after = max(numbers[place] for _, numbers in looks[half:])
        good.append(verdict("most %s, second half of the time" % name, after, "%d, as in the first" % before,
                            after <= before + 1))
    return all(good)


def main():
    folder = tempfile.mkdtemp(prefix="vantor-soak-")
    os.makedirs(folder + "/.config/vantor")
    with open(folder + "/.config/vantor/settings.ini", "w") as file:
        file.write("[General]\nrefreshInterval=0.5\nincludePointToPointInterfaces=true\n")
    if APART:
        quietly("ip", "link", "set", "lo", "up")
    desktop, unrest = Desktop(folder), Unrest(folder)
    program = desktop.start(PROGRAM)
    looks = []
    try:
        time.sleep(8)  # by then its icon is in the tray, too
        if not desktop.windows():
            sys.exit("vantor: no window came up")
        user = User(desktop)
        start = time.monotonic()
        while time.monotonic() < start + SETTLING + MINUTES * 60:
            unrest.processes()
            unrest.network()
            unrest.volumes()
            user.act()
            time.sleep(LOOK_EVERY)
            if program.poll() is not None:
                sys.exit("vantor: the program ended by itself (%d)" % program.returncode)
            at = time.monotonic() - start
            if at > SETTLING:
                looks.append((at, look(program.pid)))
        print("%d acts, %d looks" % (user.next, len(looks)))
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
