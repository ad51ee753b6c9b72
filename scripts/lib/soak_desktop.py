"""A virtual desktop for a program that is watched for long, and what comes and goes around it."""
import os
import random
import shutil
import subprocess
import time

SCREEN = (1366, 900)
OPENBOX = """<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc"><keyboard>
<keybind key="A-F4"><action name="Close"/></keybind></keyboard></openbox_config>"""


def quietly(*command, env=None):
    return subprocess.run(command, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


class Desktop:
    """A virtual screen with a window manager, a session bus, and a tray; assistive technology is on."""

    def __init__(self, folder):
        self.processes = []
        os.makedirs(folder + "/.config/openbox")
        with open(folder + "/.config/openbox/rc.xml", "w") as file:
            file.write(OPENBOX)
        self.env = {"PATH": os.environ["PATH"], "HOME": folder, "XDG_CONFIG_HOME": folder + "/.config",
                    "XDG_RUNTIME_DIR": folder, "LANG": "C.UTF-8", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        reader, writer = os.pipe()
        self.start("Xvfb", "-displayfd", str(writer), "-screen", "0", "%dx%dx24" % SCREEN, "-nolisten", "tcp",
                   "-noreset", "-r", pass_fds=(writer,))
        self.env["DISPLAY"] = ":" + os.read(reader, 16).decode().strip()
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1", stdout=subprocess.PIPE)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        # A window that asks to be shown before it is ready never is.
        self.start("openbox", "--startup", "touch '%s/window-manager-is-ready'" % folder)
        for _ in range(600):
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

    def say(self, *xdotool):
        """What the tool prints."""
        said = subprocess.run(["xdotool", *map(str, xdotool)], env=self.env, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True)
        return said.stdout

    def windows(self, title):
        """The program's windows of that title that are on the screen: (id, width) of each."""
        found = []
        for window in self.say("search", "--onlyvisible", "--class", "vantor").split():
            if self.say("getwindowname", window).strip() != title:
                continue
            for line in self.say("getwindowgeometry", "--shell", window).split():
                if line.startswith("WIDTH="):
                    found.append((window, int(line[6:])))
        return found

    def press_icon(self):
        self.say("mousemove", SCREEN[0] // 2, SCREEN[1] - 12, "click", "1")

    def end(self):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()


class Unrest:
    """Processes, links and mounts that come and go. Links and mounts only where APART is so."""

    # What is searched for among processes; each is a program of its own, as only a program's name is shown.
    NAMES = ("anchovy", "bramble", "cormorant", "dulcimer")

    def __init__(self, folder, apart):
        self.random = random.Random(1)
        self.folder, self.apart = folder, apart
        self.children = []
        self.links, self.mounts = 0, 0
        os.makedirs(folder + "/programs")
        self.programs = [shutil.copy(shutil.which("sleep"), "%s/programs/%s" % (folder, name)) for name in self.NAMES]

    def stir(self):
        self.processes()
        if self.apart:
            self.network()
            self.volumes()

    def processes(self):
        for _ in range(self.random.randint(20, 120)):
            # The last ones stay, so that there is one of each name at any time.
            program = self.programs[len(self.children) % len(self.programs)]
            self.children.append(subprocess.Popen([program, "600"], stdin=subprocess.DEVNULL))
        while len(self.children) > 200:
            child = self.children.pop(self.random.randrange(len(self.children)))
            child.kill()
            child.wait()

    def network(self):
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
