"""What the kernel says about a program: time, wakeups, memory."""

import os
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


def wakeups(pid):
    """How often the threads of a program have been woken since they began."""
    return sum(_field(task / "status", "voluntary_ctxt_switches")
               for task in pathlib.Path(f"/proc/{pid}/task").glob("*"))


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


def reset_peak(pid):
    """Begins the peak anew at what is resident now."""
    with open(f"/proc/{pid}/clear_refs", "w", encoding="ascii") as file:
        file.write("5")


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
    try:
        text = path.read_text()
    except FileNotFoundError:
        if os.path.exists(path.parent.parent):
            return 0  # a thread that ended while we looked
        raise
    for line in text.splitlines():
        key, _, value = line.partition(":")
        if key == name:
            return int(value.split()[0])
    raise KeyError(name)
