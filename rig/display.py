"""A private X display with or without a window manager and a compositor."""

import os
import re

from .child import Child, run
from .waiting import NotInTime, wait_for


def _read_number(descriptor):
    """The number that the server prints once it listens."""
    text = b""
    while not text.endswith(b"\n"):
        data = os.read(descriptor, 16)
        if not data:
            raise RuntimeError("Xvfb did not start")
        text += data
    return int(text)


class Display(Child):
    """An X server without a screen, on a number that it chose itself."""

    def __init__(self, env, size=(1280, 800)):
        reading, writing = os.pipe()
        try:
            super().__init__(["Xvfb", "-displayfd", str(writing), "-noreset", "-nolisten", "tcp",
                              "-screen", "0", f"{size[0]}x{size[1]}x24"], env, pass_fds=(writing,))
        finally:
            os.close(writing)
        self.name = f":{_read_number(reading)}"
        os.close(reading)

    def set_size(self, env, width, height):
        """Another resolution, no larger than the first, as a person would choose it."""
        mode = f"{width}x{height}"
        timings = [width, width + 1, width + 2, width + 3, height, height + 1, height + 2, height + 3]
        run(["xrandr", "--newmode", mode, "50", *timings], env)
        run(["xrandr", "--addmode", "screen", mode], env)
        return run(["xrandr", "--output", "screen", "--mode", mode], env).returncode == 0


def start_window_manager(env, log):
    manager = Child(["openbox", "--sm-disable"], env, log)
    # It says to be there a moment before it takes windows in, and what is shown in between is forgotten.
    wait_for(lambda: _takes_windows_in(env), 15, "the window manager")
    wait_for(lambda: not _managed_windows(env), what="the window manager to let the window go")
    return manager


def _takes_windows_in(env):
    with Child(["xev", "-event", "keyboard"], env):
        try:
            return wait_for(lambda: _managed_windows(env), 1.0)
        except NotInTime:
            return False


def _managed_windows(env):
    return re.findall(r"0x[0-9a-f]+", run(["xprop", "-root", "_NET_CLIENT_LIST"], env).stdout)


def start_compositor(env, log):
    compositor = Child(["picom", "--config", os.devnull, "--backend", "xrender"], env, log)
    wait_for(lambda: has_compositor(env), what="the compositor")
    return compositor


def has_compositor(env):
    """Whether somebody says to compose the screen, in the window that picom leaves for it."""
    return "picom" in run(["xwininfo", "-root", "-children"], env).stdout
