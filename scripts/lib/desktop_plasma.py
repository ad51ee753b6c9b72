"""Plasma: its compositor in a window, and its shell with the tray."""
import json
import os
import re
import time

from gi.repository import GLib

from desktop_session import SCREEN, Session, until

WINDOWS = """const found = workspace.clientList().filter(w => w.normalWindow || w.dialog || !w.specialWindow).map(w =>
    ({title: w.caption, app: String(w.desktopFileName), own: w.resourceClass == "com.kestrone.vantor" ||
      String(w.desktopFileName) == "com.kestrone.Vantor" || w.resourceClass == "vantor", shown: !w.minimized,
      box: [w.x, w.y, w.width, w.height], id: String(w.internalId)}));
print("WINDOWS %d " + JSON.stringify(found));"""


class Plasma(Session):
    app = "com.kestrone.Vantor"
    cannot = {}
    programs_place_windows = False

    def __init__(self, tree, folder, log):
        super().__init__("plasma", tree, folder, log, {
            "XDG_CURRENT_DESKTOP": "KDE", "XDG_SESSION_TYPE": "wayland", "KDE_FULL_SESSION": "true",
            "KDE_SESSION_VERSION": "5", "QT_LOGGING_RULES": "kwin_scripting.debug=true;js.debug=true",
            "QT_LOGGING_TO_CONSOLE": "1", "KWIN_COMPOSE": "Q", "QT_QUICK_BACKEND": "software"})
        self.scripts = 0
        self.log_file = log
        self.folder = folder
        self.start("kwin_wayland", "--x11-display", self.env["DISPLAY"], "--width", str(SCREEN[0]), "--height",
                   str(SCREEN[1]), "--socket", "wayland-desktop", "--no-lockscreen", "--no-global-shortcuts")
        until("the compositor is there", lambda: os.path.exists(folder + "/run/wayland-desktop"), 40)
        self.set_for_services(WAYLAND_DISPLAY="wayland-desktop", QT_QPA_PLATFORM="wayland", GDK_BACKEND="wayland")
        until("the compositor answers", lambda: self.has_service("org.kde.KWin"), 40)
        self.start("kded5")
        self.start("plasmashell")
        until("the tray is there", lambda: self.has_service("org.kde.StatusNotifierWatcher"), 40)
        until("the shell is there", lambda: self.has_service("org.kde.plasmashell"), 60)
        time.sleep(8)  # the panel builds itself

    def do(self, script):
        """Has the compositor run it."""
        self.scripts += 1
        file = "%s/script%d.js" % (self.folder, self.scripts)
        with open(file, "w") as out:
            out.write(script)
        name = "desktops%d" % self.scripts
        number = self.call("org.kde.KWin", "/Scripting", "org.kde.kwin.Scripting", "loadScript",
                           GLib.Variant("(ss)", (file, name)))[0]
        self.call("org.kde.KWin", "/%d" % number, "org.kde.kwin.Script", "run")
        self.call("org.kde.KWin", "/Scripting", "org.kde.kwin.Scripting", "unloadScript", GLib.Variant("(s)", (name,)))

    def listed(self):
        self.do(WINDOWS % (self.scripts + 1))

        def said():
            with open(self.log_file, errors="replace") as log:
                return re.findall(r"WINDOWS %d (.*)" % self.scripts, log.read())
        return [each for each in json.loads(until("a list of windows", said, 5)[-1]) if each["shown"]]

    def windows(self):
        return [{**each, "title": each["title"].split(" \u2014 ")[0]} for each in self.listed() if each["own"]]

    def other_windows(self):
        return [each["title"] for each in self.listed() if not each["own"] and each["title"]]

    item_places = [(x, SCREEN[1] - 22) for x in range(1148, 1240, 8)]

    def close(self, window):
        self.do("workspace.clientList().find(w => String(w.internalId) == '%s').closeWindow();" % window["id"])

    def set_dark(self, dark):
        self.run("plasma-apply-colorscheme", "BreezeDark" if dark else "BreezeLight")
