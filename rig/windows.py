"""The windows of a display, and the hand on mouse and keyboard."""

import re

from .child import run
from .waiting import wait_for


class Windows:
    """Looks at windows and works the mouse and the keyboard as a person would, by xdotool."""

    def __init__(self, env):
        self._env = env

    def _xdotool(self, *words, limit=10.0):
        return run(["xdotool", *words], self._env, limit)

    # Windows

    def find(self, name, by="--name", limit=15.0):
        """The visible window whose name (or class, by="--class") matches; its decimal id."""
        def found():
            return self._xdotool("search", "--onlyvisible", by, name).stdout.split()
        return int(wait_for(found, limit, f"a window called {name!r}")[-1])

    def active(self):
        """The active window by the window manager's word, None without one."""
        text = self._xdotool("getactivewindow").stdout.strip()
        return int(text) if text.isdigit() else None

    def focused(self):
        """The window that has the keyboard."""
        text = self._xdotool("getwindowfocus", "-f").stdout.strip()
        return int(text) if text.isdigit() else None

    def activate(self, window, limit=5.0):
        def asked():
            self._xdotool("windowactivate", window)
            return self.active() == window
        wait_for(asked, limit, "the window to become active", pause=0.1)

    def geometry(self, window):
        """(x, y, width, height) on the screen."""
        text = run(["xwininfo", "-id", window], self._env).stdout
        return tuple(int(re.search(rf"{name}:\s+(-?\d+)", text).group(1)) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def top_level(self):
        """The root's children from the top of the stack down: (id, width, height, x, y)."""
        text = run(["xwininfo", "-root", "-children"], self._env).stdout
        rows = re.findall(r"^\s+(0x[0-9a-f]+).*?(\d+)x(\d+)[+-]-?\d+[+-]-?\d+\s+\+(-?\d+)\+(-?\d+)", text, re.M)
        return [(int(row[0], 16), *map(int, row[1:])) for row in rows]

    def shape_is_limited(self, window):
        """Whether the window is painted in a part of its rectangle only."""
        text = run(["xwininfo", "-shape", "-id", window], self._env).stdout
        return "No window shape defined" not in text

    def screenshot(self, path):
        run(["import", "-window", "root", path], self._env, 20.0).check_returncode()

    def pixels(self):
        """What is on the screen, row by row, three bytes a pixel."""
        result = run(["import", "-window", "root", "-depth", "8", "rgb:-"], self._env, 20.0, text=False)
        result.check_returncode()
        return result.stdout

    # The pointer. Programs that listen to raw motion see it only when the pointer moves by a distance.

    def pointer(self):
        text = self._xdotool("getmouselocation").stdout
        return tuple(map(int, re.match(r"x:(-?\d+) y:(-?\d+)", text).groups()))

    def move_to(self, x, y, limit=3.0):
        """Moves the pointer there by real motion, in two strokes."""
        at_x, at_y = self.pointer()
        self._move_by((x - at_x) // 2, (y - at_y) // 2)

        def arrived():
            here_x, here_y = self.pointer()
            if (here_x, here_y) != (x, y):
                self._move_by(x - here_x, y - here_y)
            return self.pointer() == (x, y)
        wait_for(arrived, limit, f"the pointer at {x}, {y}")

    def _move_by(self, x, y):
        self._xdotool("mousemove_relative", "--", x, y)

    def click(self, x, y, button=1):
        self.move_to(x, y)
        self._xdotool("click", button)

    # The keyboard

    def key(self, *chords):
        self._xdotool("key", "--delay", "20", *chords)

    def type(self, text):
        self._xdotool("type", "--delay", "20", text)
