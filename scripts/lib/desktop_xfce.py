"""Xfce: its window manager, and its panel with the status tray."""
import os
import re

from desktop_session import Session, until

PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="icon-size" type="uint" value="16"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/><value type="int" value="2"/><value type="int" value="3"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="tasklist"/>
    <property name="plugin-2" type="string" value="separator">
      <property name="expand" type="bool" value="true"/><property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-3" type="string" value="systray">
      <property name="square-icons" type="bool" value="true"/>
    </property>
  </property>
</channel>
"""


class Xfce(Session):
    # Where the tray's only item is.
    item_places = [(SCREEN_RIGHT, 14) for SCREEN_RIGHT in (1352, 1345, 1336)]
    cannot = {}

    def __init__(self, tree, folder, log):
        super().__init__("xfce", tree, folder, log, {"XDG_CURRENT_DESKTOP": "XFCE", "XDG_SESSION_TYPE": "x11"})
        channels = folder + "/.config/xfce4/xfconf/xfce-perchannel-xml"
        os.makedirs(channels)
        with open(channels + "/xfce4-panel.xml", "w") as file:
            file.write(PANEL)
        self.set_for_services()
        self.start("xfwm4")
        self.start("xfce4-panel")
        until("the tray is there", lambda: self.has_service("org.kde.StatusNotifierWatcher"))

    def windows(self):
        """The program's: title, what it is taken for, and where it is, with no frame."""
        found = []
        for window in self.run("xdotool", "search", "--onlyvisible", "--class", "^vantor$").split():
            said = self.run("xprop", "-id", window, "WM_CLASS", "_NET_WM_NAME", "_NET_WM_WINDOW_TYPE")
            title = re.search(r'_NET_WM_NAME.* = "(.*)"', said)
            if not title:
                continue
            box = dict(line.split("=") for line in self.run(
                "xdotool", "getwindowgeometry", "--shell", window).split() if "=" in line)
            found.append({"title": title.group(1), "app": re.search(r'WM_CLASS.* = "(.*?)"', said).group(1),
                          "box": tuple(int(box[side]) for side in ("X", "Y", "WIDTH", "HEIGHT")), "id": window})
        return found

    app = "vantor"

    def other_windows(self):
        """Titles of what other programs have on the screen."""
        listed = re.findall(r"0x[0-9a-f]+", self.run("xprop", "-root", "_NET_CLIENT_LIST"))
        own = {int(window["id"]) for window in self.windows()}
        return [self.run("xdotool", "getwindowname", int(window, 16)).strip() for window in listed
                if int(window, 16) not in own]

    def close(self, window):
        self.run("xdotool", "windowactivate", "--sync", window["id"])
        self.keys("alt+F4")

    def set_dark(self, dark):
        self.run("gsettings", "set", "org.gnome.desktop.interface", "color-scheme",
                 "prefer-dark" if dark else "default")
