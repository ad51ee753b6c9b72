"""The program on a desktop, as its user meets it: python3 desktops.py DESKTOP TREE HOME PICTURES [EMPTY_WINDOW].

With the program of an empty window: what it costs there, instead."""
import importlib
import os
import subprocess
import sys
import time

from gi.repository import GLib

import desktop_cost
from desktop_session import VANTOR, Missed, until

# At the most; the dashboard is never as narrow.
PANEL_WIDTH = 480
WATCHER = ("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher", "org.kde.StatusNotifierWatcher")
DESKTOPS = {"xfce": ("desktop_xfce", "Xfce"), "gnome": ("desktop_gnome", "Gnome"),
            "plasma": ("desktop_plasma", "Plasma")}


class Trial:
    """Each step proves itself, or raises Missed."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.window = None

    def main_windows(self):
        return [each for each in self.desktop.windows() if each["title"] == "Vantor" and each["box"][2] > PANEL_WIDTH]

    def panels(self):
        return [each for each in self.desktop.windows() if each["box"][2] <= PANEL_WIDTH]

    def activate(self, method="Activate", arguments=None):
        self.desktop.call(*VANTOR, "org.freedesktop.Application", method,
                          arguments or GLib.Variant("(a{sv})", ({},)))

    def starts_by_its_desktop_file(self):
        self.activate()
        self.window = until("a window", self.main_windows)[0]
        time.sleep(3)  # the figures, and another window if there is to be one
        self.window, *more = self.main_windows()
        if more:
            raise Missed("one window instead of %d" % (1 + len(more)))
        if self.window["app"] != self.desktop.app:
            raise Missed("the desktop takes it for '%s'" % self.window["app"])
        self.desktop.picture("window")

    def item(self):
        """The service and the object of its tray item."""
        for each in self.desktop.property(*WATCHER, "RegisteredStatusNotifierItems"):
            service, _, path = each.partition("/")
            path = "/" + (path or "StatusNotifierItem")
            # Some desktops list items by the connection and its object.
            service, _, rest = service.partition("@")
            path = rest or path
            if self.desktop.property(service, path, "org.kde.StatusNotifierItem", "Id") == "vantor":
                return service, path
        return None

    def has_a_tray_item_with_a_menu(self):
        service, path = until("a tray item", self.item)
        menu = self.desktop.property(service, path, "org.kde.StatusNotifierItem", "Menu")
        _, layout = self.desktop.call(service, menu, "com.canonical.dbusmenu", "GetLayout",
                                      GLib.Variant("(iias)", (0, -1, [])))
        labels = [entry[1].get("label", "") for entry in layout[2]]
        print("    menu: " + ", ".join(label for label in labels if label))
        if not any("Quit" in label for label in labels):
            raise Missed("its menu cannot quit")

    def panel_opens_where_it_was_pressed(self):
        for place in self.desktop.item_places:
            self.desktop.press(*place, repeat=self.desktop.presses_for_panel)
            try:
                x, y, width, height = until("its panel", self.panels, 3)[0]["box"]
            except Missed:
                continue
            time.sleep(1.5)
            self.desktop.picture("panel")
            aside = max(x - place[0], place[0] - x - width, 0)
            above = max(y - place[1], place[1] - y - height, 0)
            print("    pressed at %s, open at %s, %d and %d pixels away" % (place, (x, y), aside, above))
            if not self.desktop.programs_place_windows:
                print("    where its compositor puts it: no program places windows here")
            elif aside > 4 or above > 60:
                raise Missed("a panel where it was pressed")
            self.desktop.press(*place, repeat=self.desktop.presses_for_panel)
            until("pressed again, it closes", lambda: not self.panels(), 5)
            return
        self.desktop.picture("no-panel")
        raise Missed("a panel; there are %s" % self.desktop.windows())

    def tray_menu_opens(self):
        self.desktop.press(*until("a tray item on the screen", lambda: self.desktop.item_places)[0], button=3)
        time.sleep(1.5)
        self.desktop.picture("menu")
        self.desktop.close_menu()

    def follows_dark_and_light(self):
        x, y, width, height = self.window["box"]
        # Its own ground, not its frame.
        inside = (x + 40, y + 80, width - 80, height - 120)

        def brightness():
            return self.desktop.brightness(*inside)
        seen = {}
        for dark, name in ((False, "light"), (True, "dark"), (False, "light")):
            self.desktop.set_dark(dark)
            until(name, lambda: (brightness() < 0.4) == dark, 10)
            time.sleep(1)
            seen[name] = brightness()
            self.desktop.picture(name)
        print("    brightness %.2f and %.2f" % (seen["light"], seen["dark"]))

    def asks_the_desktops_dialog(self):
        before = self.desktop.other_windows()
        self.activate("ActivateAction", GLib.Variant("(sava{sv})", ("export", [], {})))
        until("a dialog of the desktop", lambda: len(self.desktop.other_windows()) > len(before))
        time.sleep(1)
        self.desktop.picture("dialog")
        self.desktop.keys("Escape")
        until("it goes", lambda: len(self.desktop.other_windows()) == len(before), 10)

    def closes_into_the_tray_and_comes_back(self):
        self.desktop.close(self.main_windows()[0])
        until("closed", lambda: not self.main_windows(), 10)
        time.sleep(1)
        if not self.item():
            raise Missed("the tray item, with the window closed")
        started = self.desktop.start("vantor")
        if started.wait(20) != 0:
            raise Missed("a second start that hands over")
        until("it comes back", self.main_windows, 10)
        time.sleep(1)
        if len(self.main_windows()) != 1:
            raise Missed("one window after a second start")


def main():
    kind, tree, home, pictures, *empty_window = sys.argv[1:]
    module, name = DESKTOPS[kind]
    try:
        desktop = getattr(importlib.import_module(module), name)(tree, home, "%s/%s.log" % (pictures, kind))
    except Missed as missed:
        print("  no desktop: missed %s" % missed)
        return 1
    if empty_window:
        desktop_cost.report(desktop, empty_window[0])
        return 0
    trial = Trial(desktop)
    failures = 0
    for step in (trial.starts_by_its_desktop_file, trial.tray_menu_opens, trial.has_a_tray_item_with_a_menu,
                 trial.panel_opens_where_it_was_pressed, trial.follows_dark_and_light,
                 trial.asks_the_desktops_dialog, trial.closes_into_the_tray_and_comes_back):
        words = step.__name__.replace("_", " ")
        if step.__name__ in desktop.cannot:
            print("  %s: not here, %s" % (words, desktop.cannot[step.__name__]), flush=True)
            continue
        try:
            step()
            print("  %s: yes" % words, flush=True)
        except (Missed, GLib.Error, ValueError, subprocess.TimeoutExpired) as missed:
            failures += 1
            desktop.picture("failure-" + step.__name__)
            print("  %s: NO, missed %s" % (words, missed), flush=True)
    return 1 if failures else 0


if __name__ == "__main__":
    # What has been started ends with this process, its files are not waited for.
    status = main()
    sys.stdout.flush()
    os._exit(status)
