"""A user who opens, closes and changes what there is, and who looks whether it has happened."""
import itertools
import os
import time

from soak_controls import NotSeen, wait_until
from soak_desktop import SCREEN

MAIN, SETTINGS = "Vantor", "Vantor Settings"
PANEL_WIDTH = 332
INTERVAL_MENU = "Refresh interval"


class User:
    """One act at a time. Each proves itself, or raises NotSeen."""

    def __init__(self, desktop, controls, file, names):
        self.desktop, self.controls, self.file = desktop, controls, file
        self.names = itertools.cycle(names)
        self.acts = [self.panel, self.settings, self.scroll, self.search, self.into_the_tray, self.pause]
        self.done = {act.__name__: 0 for act in self.acts}
        self.settings_written = 0

    def act(self):
        act = self.acts[sum(self.done.values()) % len(self.acts)]
        try:
            act()
        except NotSeen as missed:
            raise SystemExit("vantor: the act '%s' failed: %s" % (act.__name__, missed)) from None
        except self.controls.error as failure:
            raise SystemExit("vantor: the act '%s' failed on the accessibility bus: %s" % (
                act.__name__, failure)) from None
        self.done[act.__name__] += 1

    def _is_open(self, title):
        return any(width != PANEL_WIDTH for _, width in self.desktop.windows(title))

    def _has_panel(self):
        return any(width == PANEL_WIDTH for _, width in self.desktop.windows(MAIN))

    def _activate(self, title):
        for window, width in self.desktop.windows(title):
            if width != PANEL_WIDTH:
                self.desktop.say("windowactivate", "--sync", window)

        def is_active():
            return self.desktop.say("getactivewindow", "getwindowname").strip() == title
        wait_until("'%s' has the keyboard" % title, is_active)

    def _open_panel(self):
        # A press that comes while the icon is just being embedded is nobody's.
        for attempt in range(5):
            self.desktop.press_icon()
            try:
                wait_until("the panel opens", self._has_panel, 8)
                return
            except NotSeen:
                if attempt == 4:
                    raise

    def panel(self):
        self._open_panel()
        self._close_panel("Escape")

    def _close_panel(self, key):
        """The keyboard is the panel's once it has drawn itself, which may be later than its window."""
        def is_closed():
            if not self._has_panel():
                return True
            self.desktop.say("key", key)
            return False
        wait_until("the panel closes", is_closed)

    # The settings, each looked for in the file.

    def settings(self):
        self.controls.do(MAIN, "menu item", "Settings…", "Press")
        wait_until("the settings open", lambda: self._is_open(SETTINGS))
        self._change_theme()
        self._change_history()
        self._change_toggle("Include point-to-point", "includePointToPointInterfaces")
        self._change_interval("1 second", "Down", "1")
        self._change_interval("0.5 second", "Up", "0.5")
        # Off and on: the icon in the tray goes and is back.
        self._change_toggle("Show menu bar", "showMenuBar")
        self._change_toggle("Show menu bar", "showMenuBar")
        self._activate(SETTINGS)
        self.desktop.say("key", "Escape")
        wait_until("the settings close", lambda: not self._is_open(SETTINGS))

    def _stored(self, key):
        try:
            with open(self.file) as file:
                lines = file.read().splitlines()
        except OSError:
            return None
        return next((line.split("=", 1)[1] for line in lines if line.startswith(key + "=")), None)

    def _expect_stored(self, key, value):
        try:
            wait_until("", lambda: self._stored(key) == value)
        except NotSeen:
            raise NotSeen("%s=%s did not reach %s, which says %s" % (
                key, value, os.path.basename(self.file), self._stored(key))) from None
        self.settings_written += 1

    def _change_theme(self):
        next_one = "Light" if self.controls.is_checked(SETTINGS, "radio button", "Dark") else "Dark"
        self.controls.do(SETTINGS, "radio button", next_one, "Toggle")
        self._expect_stored("appearance", next_one.lower())

    def _change_history(self):
        before = self.controls.number(SETTINGS, "spin button", "Chart history")
        self.controls.do(SETTINGS, "spin button", "Chart history", "Increase" if before < 200 else "Decrease")
        after = self.controls.number(SETTINGS, "spin button", "Chart history")
        if before == after:
            raise NotSeen("the history's length stays %d" % before)
        self._expect_stored("historyLength", "%d" % after)

    def _change_toggle(self, begins, key):
        was_on = self.controls.is_checked(SETTINGS, "check box", begins)
        self._activate(SETTINGS)
        self.controls.do(SETTINGS, "check box", begins, "SetFocus")
        wait_until("'%s' has the focus" % begins,
                   lambda: self.controls.has_focus(SETTINGS, "check box", begins))
        self.desktop.say("key", "space")
        self._expect_stored(key, "false" if was_on else "true")

    def _change_interval(self, label, key, value):
        """By the menu, which assistive technology opens and the keyboard chooses from."""
        before = self._windows()
        self.controls.do(SETTINGS, "push button", INTERVAL_MENU, "Press")
        wait_until("the menu of intervals opens", lambda: self._windows() > before)
        # It takes keys a little later than it has a window.
        time.sleep(0.3)

        def is_chosen():
            return self.controls.name(SETTINGS, "push button", INTERVAL_MENU).endswith(" " + label)

        self.desktop.say("key", key, "Return")
        wait_until("the interval is %s" % label, is_chosen)
        self._expect_stored("refreshInterval", value)

    def _windows(self):
        """How many there are of any kind; the icon in the tray is one, too."""
        return len(self.desktop.say("search", "--onlyvisible", "--class", "vantor").split())

    # The dashboard.

    def scroll(self):
        self._activate(MAIN)
        self.desktop.say("mousemove", SCREEN[0] // 2, SCREEN[1] // 2)

        def place():
            return self.controls.number(MAIN, "scroll bar", "")
        before = place()
        self.desktop.say("click", "--repeat", "12", "--delay", "30", "5")
        wait_until("the dashboard scrolls down", lambda: place() > before)
        self.desktop.say("click", "--repeat", "16", "--delay", "30", "4")
        wait_until("the dashboard scrolls back", lambda: place() == 0)

    def search(self):
        name = next(self.names)
        self._activate(MAIN)
        self.desktop.say("key", "ctrl+f")
        self.desktop.say("type", "--delay", "60", name)

        def are_those():
            rows = self.controls.rows(MAIN, "Processes")
            return bool(rows) and all(row.startswith(name + ", PID ") for row in rows)
        wait_until("the rows are those of %s" % name, are_those)
        self.desktop.say("key", "Escape")

        def are_all():
            return any(not row.startswith(name) for row in self.controls.rows(MAIN, "Processes"))
        wait_until("the rows are all again", are_all)

    def into_the_tray(self):
        self.controls.do(MAIN, "menu item", "Close Window", "Press")
        wait_until("the window goes", lambda: not self._is_open(MAIN))
        self._open_panel()
        self._close_panel("Return")
        wait_until("the window is back", lambda: self._is_open(MAIN))

    def pause(self):
        for press, says in (("Pause", "Paused"), ("Resume", "Live")):
            self.controls.do(MAIN, "push button", press, "Press")
            wait_until("the header says %s" % says,
                       lambda: self.controls.description(MAIN, "label", "Status") == says)
