"""What a program costs while nobody uses it."""

import contextlib
import time

from contenders import contenders, measure
from table import Figure

NOTES = [
    "idle: every program on its own display at the same time, 20 texts in the history, nothing touched;"
    " a program is all its processes; wakeups are voluntary context switches of all threads.",
]


def run(quick, say):
    """The figures of idleness."""
    seconds = 15 if quick else 60
    wakeups = Figure("wakeups per idle minute", "", 2)
    cpu = Figure("CPU per idle minute", "ms", judged=False)
    fresh = Figure("PSS closed", "MB")
    used = Figure("PSS closed, panel opened once before", "MB", judged=False)
    with contextlib.ExitStack() as stack:
        subjects = [stack.enter_context(kind()) for kind in contenders()]
        for subject in subjects:
            say(f"idle: starting {subject.name}")
            _start_with_clips(subject)
        for subject in subjects:
            subject.settle()
        say(f"idle: watching {seconds} s")
        for subject, woken, worked in _watch(subjects, seconds):
            wakeups.values[subject.name] = woken * 60 / seconds
            cpu.values[subject.name] = worked * 60 / seconds * 1000
            fresh.values[subject.name] = _megabytes(subject)
        for subject in subjects:
            subject.open_and_close()
            subject.settle()
            used.values[subject.name] = _megabytes(subject)
    return [wakeups, cpu, fresh, used]


def _start_with_clips(subject):
    subject.start()
    owner, _ = subject.clipboard.owner("burst", 20, 100_000, "idle ")
    subject.wait_has("idle 19")
    owner.stop()
    subject.clipboard.copy_text("the last one")
    subject.wait_has("the last one")


def _watch(subjects, seconds):
    """(subject, wakeups, seconds of CPU) over that time."""
    worked = [subject.cpu() for subject in subjects]
    woken = [measure.Wakeups(subject.pids()) for subject in subjects]
    for _ in range(seconds):
        time.sleep(1)
        for subject, count in zip(subjects, woken):
            count.look(subject.pids())
    return [(subject, count.total, subject.cpu() - before)
            for subject, count, before in zip(subjects, woken, worked)]


def _megabytes(subject):
    return measure.total(measure.pss, subject.pids()) / 1e6
