"""The program under test, started and spoken to."""

import collections
import contextlib
import json
import os
import pathlib
import signal

from .bus import BusConnection, BusError, parse_run_reply
from .child import Child, run
from .waiting import NotInTime, wait_for

Reply = collections.namedtuple("Reply", "status out err")

_ROOT = pathlib.Path(__file__).resolve().parents[1]
# The island's window, wherever it is.
WINDOW_SIZE = (800, 500)


def program_path():
    return os.environ.get("VELM_BIN", str(_ROOT / "build" / "bin" / "velm"))


class Velm(contextlib.AbstractContextManager):
    """Velm on a desktop. Commands go over the bus as the command line sends them, without its start-up time."""

    def __init__(self, desktop, env=None, program=None):
        self.desktop = desktop
        self.program = program or program_path()
        self.env = {**desktop.env, **(env or {})}
        self.log = desktop.home.root / "velm.log"
        self.child = None
        self._connection = None

    def __enter__(self):
        return self.start()

    def __exit__(self, *_):
        self.stop()

    # Life

    def start(self, limit=20.0):
        """Starts it and waits until it answers, or without a bus until its window is there."""
        self.child = Child([self.program], self.env, self.log)
        wait_for(self.is_up if self.desktop.bus else self.window, limit, "Velm to come up", pause=0.01)
        return self

    def is_up(self):
        if not self.child.is_running:
            raise NotInTime(f"Velm ended with status {self.child.wait()}:\n{self.log_text()}")
        try:
            return self.ask("status", "--json").status == 0
        except (BusError, OSError):
            self._drop_connection()
            return False

    def stop(self):
        self._drop_connection()
        if self.child:
            self.child.stop()

    def end(self, number=signal.SIGTERM, limit=5.0):
        """Ends it by a signal; its exit status."""
        self._drop_connection()
        self.child.signal(number)
        return self.child.wait(limit)

    def restart(self):
        self.end()
        return self.start()

    @property
    def pid(self):
        return self.child.pid

    @property
    def is_running(self):
        return self.child.is_running

    def log_text(self):
        return self.log.read_text(errors="replace") if self.log.exists() else ""

    # Commands

    def run(self, *words, limit=15.0):
        """The command line itself, as a shell would start it."""
        return run([self.program, *words], self.env, limit, cwd=self.desktop.home.home)

    def ask(self, *words):
        """What the running program answers to a command."""
        if self._connection is None:
            self._connection = BusConnection(self.desktop.bus.socket)
        body = self._connection.call("app.velm.Velm", "/app/velm/Velm", "app.velm.Velm1", "Run",
                                     [str(word) for word in words])
        return Reply(*parse_run_reply(body))

    def _drop_connection(self):
        if self._connection:
            self._connection.close()
        self._connection = None

    def do(self, *words):
        """A command that must succeed; its output."""
        reply = self.ask(*words)
        if reply.status != 0:
            raise AssertionError(f"velm {' '.join(map(str, words))}: {reply}")
        return reply.out

    def json(self, *words):
        return json.loads(self.do(*words, "--json"))

    def status(self):
        return self.json("status")

    def mode(self):
        return self.status()["mode"]

    def wait_mode(self, mode, limit=5.0):
        wait_for(lambda: self.mode() == mode, limit, f"mode {mode}")

    def clips(self, *options):
        return self.json("clip", "list", *options)

    def texts(self):
        return [clip["text"] for clip in self.clips()]

    def wait_clip(self, text, limit=5.0):
        """The newest clip once it holds this text."""
        def newest():
            clips = self.clips()
            return clips[0] if clips and clips[0]["text"] == text else None
        return wait_for(newest, limit, f"the clip {text[:40]!r}")

    # The window

    def window(self):
        """The id of the island's window, None before it is there."""
        for window, width, height, _, _ in self.desktop.windows.top_level():
            if (width, height) == WINDOW_SIZE:
                return window
        return None

    def island(self):
        """The island's rectangle on the screen: (x, y, width, height)."""
        size = self.status()["islandSize"]
        x, y, width, _ = self.desktop.windows.geometry(self.window())
        return (x + (width - size["width"]) / 2, y, size["width"], size["height"])

    def hover(self):
        """Moves the pointer onto the closed island."""
        x, y, width, _ = self.desktop.windows.geometry(self.window())
        self.desktop.windows.move_to(x + width // 2, y + 8)

    def open_by_hover(self, limit=5.0):
        self.hover()
        self.wait_mode("expanded", limit)

    def close(self):
        """The island closed and the pointer away from it."""
        width, height = self.desktop.size
        self.desktop.windows.move_to(width // 2, height - 60)
        self.do("close")
        self.wait_mode("idle")
