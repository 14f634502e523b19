"""A whole private desktop: home, display, bus, window manager."""

import contextlib
import subprocess

from .bus import SessionBus
from .child import Child, LineReader
from .copying import Clipboard, client
from .display import Display, start_compositor, start_window_manager
from .editor import TextEditor
from .home import Home
from .windows import Windows


class Desktop(contextlib.ExitStack):
    """Everything that a person's session has, and nothing of the machine's own one.

    All that was started through it ends with it, the youngest first.
    """

    def __init__(self, size=(1280, 800), window_manager=True, compositor=False, bus=True):
        super().__init__()
        with contextlib.ExitStack() as started:
            self.home = started.enter_context(Home())
            self.env = self.home.environment()
            self.log = self.home.root / "log"
            self.size = size
            self.display = started.enter_context(Display(self.env, size))
            self.env["DISPLAY"] = self.display.name
            self.bus = started.enter_context(SessionBus(str(self.home.root), self.env)) if bus else None
            # Without a bus the address leads nowhere: libraries would else start one by themselves.
            self.env["DBUS_SESSION_BUS_ADDRESS"] = (
                self.bus.address if bus else f"unix:path={self.home.root}/no-bus")
            if window_manager:
                started.enter_context(start_window_manager(self.env, self.log))
            self.compositor = self.add_compositor(started) if compositor else None
            self.enter_context(started.pop_all())
        self.windows = Windows(self.env)
        self.clipboard = Clipboard(self.env, self.log, self.enter_context)

    def add_compositor(self, stack=None):
        return (stack or self).enter_context(start_compositor(self.env, self.log))

    def start(self, command, env=None, output=None):
        """A program of this desktop; `env` adds to its environment."""
        return self.enter_context(Child(command, {**self.env, **(env or {})}, output or self.log))

    def click_window(self):
        """A full-screen window that says what reaches it: (child, reader of its lines)."""
        path = self.home.root / "click-window"
        child = self.enter_context(
            Child([client("click_window")], self.env, path, stdin=subprocess.PIPE))
        reader = LineReader(path)
        reader.wait_line("ready", 15)
        return child, reader

    def text_editor(self, path):
        """A text editor with this new file open and the keyboard in its text."""
        return self.enter_context(TextEditor(self, path))
