"""GNOME's shell as a Wayland compositor in a window, with Debian's extension for tray items."""
import json
import os

from gi.repository import GLib

from desktop_session import SCREEN, Session, until

# The shell lets others look into it only when it is told to.
EXTENSION = "look-inside@desktops"
LOOK_INSIDE = """function init() {}
function enable() { global.context.unsafe_mode = true; }
function disable() { global.context.unsafe_mode = false; }
"""
TRAY = "ubuntu-appindicators@ubuntu.com"

WINDOWS = """JSON.stringify(global.get_window_actors().map(a => a.meta_window).filter(w => !w.minimized).map(w => {
    const app = imports.gi.Shell.WindowTracker.get_default().get_window_app(w);
    const r = w.get_frame_rect();
    return {title: w.get_title() || '', app: app ? app.get_id() : '', icon: app && app.get_icon() ?
            app.get_icon().to_string() : '', own: w.get_wm_class() === 'com.kestrone.Vantor',
            box: [r.x, r.y, r.width, r.height], id: w.get_stable_sequence()};
}))"""
# Of the indicators at the right of the top bar.
ITEM = """JSON.stringify(Object.keys(imports.ui.main.panel.statusArea).filter(k => k.startsWith('appindicator'))
    .map(k => imports.ui.main.panel.statusArea[k]).filter(i => i.is_mapped())
    .map(i => i.get_transformed_position().concat(i.get_transformed_size())))"""


class Gnome(Session):
    app = "com.kestrone.Vantor.desktop"
    cannot = {}
    programs_place_windows = False
    # Once is for the menu.
    presses_for_panel = 2

    def __init__(self, tree, folder, log):
        super().__init__("gnome", tree, folder, log, {
            "XDG_CURRENT_DESKTOP": "GNOME", "XDG_SESSION_TYPE": "wayland", "XDG_SESSION_DESKTOP": "gnome",
            "MUTTER_DEBUG_DUMMY_MODE_SPECS": "%dx%d" % SCREEN})
        own = folder + "/.local/share/gnome-shell/extensions/" + EXTENSION
        os.makedirs(own)
        with open(own + "/metadata.json", "w") as file:
            json.dump({"uuid": EXTENSION, "name": EXTENSION, "description": "Looks inside", "shell-version": ["43", "44"]}, file)
        with open(own + "/extension.js", "w") as file:
            file.write(LOOK_INSIDE)
        self.run("gsettings", "set", "org.gnome.shell", "enabled-extensions", str([EXTENSION, TRAY]))
        self.run("gsettings", "set", "org.gnome.shell", "welcome-dialog-last-shown-version", "999")
        self.run("gsettings", "set", "org.gnome.desktop.interface", "enable-animations", "false")
        self.run("gsettings", "set", "org.gnome.desktop.notifications", "show-banners", "false")
        self.start("gnome-shell", "--nested", "--wayland", "--wayland-display", "wayland-desktop", "--sm-disable")
        until("the shell is there", lambda: os.path.exists(folder + "/run/wayland-desktop"), 40)
        self.set_for_services(WAYLAND_DISPLAY="wayland-desktop", QT_QPA_PLATFORM="wayland", GDK_BACKEND="wayland")
        until("the shell answers", lambda: self.has_service("org.gnome.Shell"), 40)
        until("the shell lets look inside", lambda: self.ask("1 + 1") == "2", 20)
        # It begins with the overview.
        until("the shell has started", lambda: self.ask("imports.ui.main.layoutManager._startingUp") == "false", 40)
        until("the overview goes", lambda: self.ask(
            "imports.ui.main.overview.hide(); imports.ui.main.overview.visible") == "false")
        until("the tray is there", lambda: self.has_service("org.kde.StatusNotifierWatcher"))

    def ask(self, script):
        done, answer = self.call("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell", "Eval",
                                 GLib.Variant("(s)", (script,)))
        # What it answers is written once more as text.
        return (json.loads(answer) if answer.startswith('"') else answer) if done else None

    def listed(self):
        return json.loads(self.ask(WINDOWS) or "[]")

    def windows(self):
        return [each for each in self.listed() if each["own"]]

    def other_windows(self):
        return [each["title"] for each in self.listed() if not each["own"]]

    @property
    def item_places(self):
        return [(round(x + width / 2), round(y + height / 2))
                for x, y, width, height in json.loads(self.ask(ITEM) or "[]")]

    def close_menu(self):
        self.ask("imports.ui.main.panel.menuManager.activeMenu.close(0)")

    def close(self, window):
        self.ask("global.get_window_actors().map(a => a.meta_window).find(w => w.get_stable_sequence() === %d)"
                 ".delete(global.get_current_time())" % window["id"])

    def set_dark(self, dark):
        self.run("gsettings", "set", "org.gnome.desktop.interface", "color-scheme",
                 "prefer-dark" if dark else "default")
