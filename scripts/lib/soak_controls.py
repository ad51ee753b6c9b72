"""The program's controls by the names that assistive technology knows them by."""
import os
import time
import warnings

# Seconds until what was asked for has to be seen; long, because the machine may be busy with others.
PATIENCE = 40


class NotSeen(Exception):
    """What should have happened did not, in time."""


def wait_until(what, holds, seconds=PATIENCE):
    """Asks until it holds, and gives what it said."""
    end = time.monotonic() + seconds
    while True:
        seen = holds()
        if seen:
            return seen
        if time.monotonic() > end:
            raise NotSeen("%s: not in %d s" % (what, seconds))
        time.sleep(0.1)


class Controls:
    def __init__(self, environment, application):
        """`environment` is the desktop's, which the library looks for in the process's own, once."""
        os.environ.update(environment)
        warnings.filterwarnings("ignore", category=DeprecationWarning)
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        self.atspi, self.error = Atspi, GLib.Error
        Atspi.init()
        Atspi.set_timeout(10000, 10000)
        self.known = {}
        self.application = wait_until("the program on the accessibility bus", lambda: self._child(
            Atspi.get_desktop(0), application))
        # Nobody handles the events here that would keep a cache true.
        self.application.set_cache_mask(Atspi.Cache.NONE)

    def _child(self, parent, name):
        try:
            for i in range(parent.get_child_count()):
                child = parent.get_child_at_index(i)
                if child and child.get_name() == name:
                    return child
        except self.error:
            pass
        return None

    def _search(self, element, role, begins):
        if element.get_role_name() == role and element.get_name().startswith(begins):
            return element
        for i in range(element.get_child_count()):
            child = element.get_child_at_index(i)
            found = self._search(child, role, begins) if child else None
            if found:
                return found
        return None

    def find(self, window, role, begins):
        """The first element of that role in the window of that title whose name begins so, or None."""
        key = (window, role, begins)
        try:
            known = self.known.get(key)
            if known and known.get_name().startswith(begins):
                return known
        except self.error:
            pass
        self.known.pop(key, None)
        try:
            root = self._child(self.application, window)
            found = self._search(root, role, begins) if root else None
        except self.error:
            return None
        if found:
            self.known[key] = found
        return found

    def get(self, window, role, begins):
        return wait_until("the %s '%s'" % (role, begins), lambda: self.find(window, role, begins))

    def do(self, window, role, begins, action):
        element = self.get(window, role, begins)
        names = [element.get_action_name(i) for i in range(element.get_n_actions())]
        if action not in names:
            raise NotSeen("the %s '%s' has no action %s, only %s" % (role, begins, action, names))
        element.do_action(names.index(action))

    def number(self, window, role, begins):
        return self.get(window, role, begins).get_current_value()

    def name(self, window, role, begins):
        return self.get(window, role, begins).get_name()

    def description(self, window, role, begins):
        return self.get(window, role, begins).get_description()

    def _has_state(self, state, window, role, begins):
        return self.get(window, role, begins).get_state_set().contains(state)

    def is_checked(self, window, role, begins):
        return self._has_state(self.atspi.StateType.CHECKED, window, role, begins)

    def has_focus(self, window, role, begins):
        return self._has_state(self.atspi.StateType.FOCUSED, window, role, begins)

    def rows(self, window, begins):
        """The names of a list's rows."""
        rows = self.get(window, "list", begins)
        try:
            children = [rows.get_child_at_index(i) for i in range(rows.get_child_count())]
            return [child.get_name() for child in children if child]
        except self.error:
            return []  # it changed meanwhile
