"""A session of a desktop on a virtual screen: its processes, its bus, its pictures."""
import os
import subprocess
import time

from gi.repository import Gio, GLib

SCREEN = (1366, 900)
VANTOR = ("com.kestrone.Vantor", "/com/kestrone/Vantor")


class Missed(Exception):
    """What was waited for has not come."""


def until(what, condition, seconds=20):
    """What the condition answers first that is true."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        try:
            answer = condition()
        except GLib.Error:  # who is asked is not there yet, or no more
            answer = None
        if answer:
            return answer
        time.sleep(0.1)
    raise Missed(what)


class Session:
    """Whoever uses it is the first process of a namespace: all that is started here ends with it."""

    def __init__(self, name, tree, folder, log, more):
        self.log = open(log, "w")
        self.pictures = os.path.dirname(log)
        self.name = name
        for each in (".config", ".local/share", ".cache", "run"):
            os.makedirs(os.path.join(folder, each), 0o700)
        os.makedirs(folder + "/.config/vantor")
        with open(folder + "/.config/vantor/settings.ini", "w") as file:
            file.write("[General]\nappearance=system\n")
        share = os.path.join(tree, "usr/share")
        self.env = {
            "PATH": os.path.join(tree, "usr/bin") + ":/usr/bin:/bin:/usr/sbin:/sbin", "LANG": "C.UTF-8",
            "HOME": folder, "XDG_RUNTIME_DIR": folder + "/run", "XDG_DATA_DIRS": share + ":/usr/share",
            "XDG_CONFIG_HOME": folder + "/.config", "XDG_DATA_HOME": folder + "/.local/share",
            "XDG_CACHE_HOME": folder + "/.cache", "GSETTINGS_BACKEND": "keyfile", "NO_AT_BRIDGE": "1",
            "LIBGL_ALWAYS_SOFTWARE": "1", "GIO_USE_VFS": "local", **more}
        reader, writer = os.pipe()
        self.start("Xvfb", "-displayfd", str(writer), "-screen", "0", "%dx%dx24" % SCREEN, "-nolisten", "tcp",
                   "-noreset", "-r", pass_fds=(writer,))
        self.env["DISPLAY"] = ":" + os.read(reader, 16).decode().strip()
        # Some of them ask the system's bus, where nobody answers.
        self.env["DBUS_SYSTEM_BUS_ADDRESS"] = self._bus()
        self.env["DBUS_SESSION_BUS_ADDRESS"] = self._bus()
        self.bus = Gio.DBusConnection.new_for_address_sync(
            self.env["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)

    def _bus(self):
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1", stdout=subprocess.PIPE)
        return bus.stdout.readline().decode().strip()

    def start(self, *command, stdout=None, pass_fds=(), **more):
        return subprocess.Popen(command, env={**self.env, **more}, stdin=subprocess.DEVNULL,
                                stdout=stdout or self.log, stderr=self.log, pass_fds=pass_fds, cwd=self.env["HOME"])

    def run(self, *command):
        """What the command prints."""
        return subprocess.run([str(word) for word in command], env=self.env, stdout=subprocess.PIPE,
                              stderr=self.log, text=True, check=False, timeout=60).stdout

    def set_for_services(self, **variables):
        """What the bus starts from now on has these, too."""
        self.env.update(variables)
        self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                  "UpdateActivationEnvironment", GLib.Variant("(a{ss})", (self.env,)))

    def call(self, service, path, interface, method, arguments=None, seconds=25):
        answer = self.bus.call_sync(service, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                    seconds * 1000, None)
        return answer.unpack()

    def property(self, service, path, interface, name):
        return self.call(service, path, "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (interface, name)))[0]

    def has_service(self, name):
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameHasOwner",
                         GLib.Variant("(s)", (name,)))[0]

    def picture(self, name):
        """Of the whole screen; where it is."""
        file = "%s/%s-%s.png" % (self.pictures, self.name, name)
        self.run("import", "-silent", "-window", "root", file)
        return file

    def brightness(self, x, y, width, height):
        """From 0 to 1, of a part of the screen."""
        return float(self.run("import", "-silent", "-window", "root", "-crop", "%dx%d+%d+%d" % (width, height, x, y),
                              "-colorspace", "Gray", "-format", "%[fx:mean]", "info:"))

    presses_for_panel = 1
    programs_place_windows = True

    def press(self, x, y, button=1, repeat=1):
        self.run("xdotool", "mousemove", x, y, "sleep", "0.3", "click", "--repeat", repeat, "--delay", 80, button)

    def close_menu(self):
        self.keys("Escape")

    def keys(self, *names):
        self.run("xdotool", "key", *names)
