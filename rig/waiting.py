"""Waiting for what happens, never for a time to pass."""

import time


class NotInTime(AssertionError):
    """What was waited for did not happen within its limit."""


def wait_for(condition, limit=5.0, what=None, pause=0.02):
    """The first true value that `condition` gives; NotInTime after `limit` seconds."""
    end = time.monotonic() + limit
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            name = what or getattr(condition, "__name__", "it")
            raise NotInTime(f"not within {limit} s: {name}; last seen: {value!r}")
        time.sleep(pause)


def stays(condition, seconds, pause=0.02):
    """Whether `condition` holds all through the next `seconds`: for what must not happen."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not condition():
            return False
        time.sleep(pause)
    return True
