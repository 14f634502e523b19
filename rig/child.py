"""Programs that the rig starts, and their end."""

import ctypes
import os
import signal
import subprocess

from .waiting import wait_for

_libc = ctypes.CDLL(None)
_PR_SET_PDEATHSIG = 1


def _die_with_parent():
    _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGKILL)


class Child:
    """One program of the desktop, started in the background and ended by its own pid only.

    Its standard output goes to `output` (a path) unless pipes are asked for; it never outlives the test.
    """

    def __init__(self, command, env, output=os.devnull, stdin=subprocess.DEVNULL, stdout=None, pass_fds=()):
        self.command = [str(word) for word in command]
        self._output = open(output, "ab")
        self.process = subprocess.Popen(
            self.command, env=env, stdin=stdin, stdout=stdout or self._output, stderr=self._output,
            pass_fds=pass_fds, preexec_fn=_die_with_parent, start_new_session=True)

    @property
    def pid(self):
        return self.process.pid

    @property
    def is_running(self):
        return self.process.poll() is None

    def signal(self, number):
        if self.is_running:
            self.process.send_signal(number)

    def wait(self, limit=5.0):
        """Its exit status; negative for a signal, as subprocess says it."""
        return self.process.wait(timeout=limit)

    def stop(self, limit=5.0):
        """Ends it politely, then not; continues it first, since a stopped program hears nothing."""
        if self.is_running:
            self.process.send_signal(signal.SIGCONT)
            self.process.terminate()
            try:
                self.process.wait(timeout=limit)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait(timeout=limit)
        for stream in (self.process.stdin, self.process.stdout, self._output):
            if stream:
                stream.close()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stop()


class LineReader:
    """The lines that a child prints to a file, as they come."""

    def __init__(self, path):
        self._path = path

    def lines(self):
        with open(self._path, encoding="utf-8", errors="replace") as file:
            return file.read().splitlines()

    def wait_line(self, start, limit=5.0):
        """The first line that begins with `start`."""
        return wait_for(lambda: next((line for line in self.lines() if line.startswith(start)), None),
                        limit, f"a line that begins with {start!r}")


def run(command, env=None, limit=10.0, **options):
    """A program that ends by itself, with its output as text."""
    return subprocess.run([str(word) for word in command], env=env, timeout=limit, capture_output=True,
                          text=options.pop("text", True), **options)
