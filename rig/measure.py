"""What the kernel says about a program: time, wakeups, memory."""

import pathlib
import time


def children_of(pid):
    """All processes below one, itself first."""
    found = [pid]
    for parent in found:
        for task in pathlib.Path(f"/proc/{parent}/task").glob("*"):
            try:
                found += [int(word) for word in (task / "children").read_text().split()]
            except OSError:
                continue
    return found


class Wakeups:
    """How often the threads of some programs are woken from now on.

    Looks are to be a second apart or so: what a thread did after the last look at it goes with it when it ends,
    but for the one wakeup that ending takes.
    """

    def __init__(self, pids):
        self._counts = _switches(pids)
        self.total = 0

    def look(self, pids):
        now = _switches(pids)
        for thread, count in now.items():
            self.total += count - self._counts.get(thread, 0)
        self.total += len(self._counts.keys() - now.keys())
        self._counts = now


def _switches(pids):
    """Voluntary context switches so far, by thread."""
    counts = {}
    for pid in pids:
        for task in pathlib.Path(f"/proc/{pid}/task").glob("*"):
            try:
                counts[task] = _field(task / "status", "voluntary_ctxt_switches")
            except (OSError, KeyError):
                continue  # it has just ended
    return counts


def cpu(pid):
    """Seconds of processor time, threads that have ended included."""
    clock = (~pid << 3) | 2  # the kernel's number for another process's clock, as clock_getcpuclockid makes it
    return time.clock_gettime(clock)


def pss(pid):
    """Proportional share of memory, in bytes."""
    return _field(pathlib.Path(f"/proc/{pid}/smaps_rollup"), "Pss") * 1024


def peak_rss(pid):
    """The most that was ever resident, in bytes."""
    return _field(pathlib.Path(f"/proc/{pid}/status"), "VmHWM") * 1024


def is_stopped(pid):
    return pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0] == "T"


def total(figure, pids):
    """The sum of one figure over programs; those that have gone count nothing."""
    amount = 0
    for pid in pids:
        try:
            amount += figure(pid)
        except OSError:
            continue
    return amount


def _field(path, name):
    for line in path.read_text().splitlines():
        key, _, value = line.partition(":")
        if key == name:
            return int(value.split()[0])
    raise KeyError(name)
