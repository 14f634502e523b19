"""What a copy costs, and whether it is kept."""

import dataclasses
import statistics
import time
from collections.abc import Callable

from contenders import contenders, measure
from table import Figure

NOTES = [
    "start to first capture: a client copies all the while (each 2 ms beside velm, each 50 ms beside copyq, which"
    " leaves out quicker ones); the figure is from exec to the oldest copy in the history; median of the starts.",
    "copy to history: from taking the selection until the program, asked without pause (velm over its bus, copyq by"
    " one running script), shows the text; the asking is part of it.",
    "CPU per clip: all processes, until they rest again, the island's animation and the saving included; 0.1 s apart"
    " is saved once at the end, 0.7 s apart each time.",
    "read of the burst: copies that some program asked for, and got, before the next one; on a busy machine the"
    " reader does not come to each.",
    "peak memory: the sum of the processes' high-water marks.",
]

LARGE = 53_000_000


@dataclasses.dataclass
class Step:
    """Some figures that come out of one experiment; `quick` asks for a shorter one."""

    title: str
    figures: Callable  # quick -> the rows, without values
    measure: Callable  # (kind of contender, quick) -> a value for each row


def run(quick, say):
    """The figures of copying."""
    figures = []
    for step in STEPS:
        rows = step.figures(quick)
        figures += rows
        for kind in contenders():
            say(f"clipboard: {step.title}: {kind.name}")
            for row, value in zip(rows, _values(step, kind, quick, len(rows), say)):
                row.values[kind.name] = value
    return figures


def _values(step, kind, quick, count, say):
    try:
        return step.measure(kind, quick)
    except (AssertionError, RuntimeError, OSError, ValueError) as error:
        say(f"clipboard: {step.title}: {kind.name}: failed: {error}")
        return ["failed"] * count


def _capture_figures(_):
    return [Figure("start to first capture", "ms", judged=False)]


def _measure_capture(kind, quick):
    return [statistics.median(_start_once(kind) for _ in range(1 if quick else 3))]


def _start_once(kind):
    with kind() as subject:
        step = int(kind.capture_step * 1e6)
        owner, reader = subject.clipboard.owner("burst", 10_000_000 // step, step, "start-")
        began = int(reader.wait_line("began").split()[1])
        launched = time.monotonic_ns()
        subject.start()
        time.sleep(0.5)
        owner.stop()
        oldest = min(int(text.partition("-")[2]) for text in subject.texts("start-", 20_000))
        return (began + oldest * step * 1000 - launched) / 1e6


def _latency_figures(_):
    return [Figure("copy to history, median", "ms", 3), Figure("copy to history, slowest", "ms", judged=False)]


def _measure_latency(kind, quick):
    with kind(history=200) as subject:
        subject.start()
        subject.settle()
        owner, reader = subject.clipboard.owner("lines")
        shown = []
        for number in range(12 if quick else 52):
            text = f"latency {number}."
            owner.process.stdin.write(f"{text}\n".encode())
            owner.process.stdin.flush()
            subject.wait_shown(text)
            shown.append(time.monotonic_ns())
            time.sleep(0.1 + 0.013 * (number % 7))  # off the beat of any polling
        subject.rest_from_watching()
        copied = [int(line.split()[1]) for line in reader.lines()]
        taken = [(end - begin) / 1e6 for begin, end in zip(copied, shown)][2:]
        return [statistics.median(taken), max(taken)]


def _cpu_figures(_):
    return [Figure(f"CPU per clip, {size:,} in the history, {gap}", "ms", 2)
            for size in (200, 10_000) for gap in ("0.1 s apart", "0.7 s apart")]


def _measure_cpu(kind, quick):
    values = []
    for size in (200, 10_000):
        with kind(history=size, limit=size) as subject:
            subject.start()
            subject.settle(60)
            for count, gap in ((20, 0.1), (5, 0.7)) if quick else ((40, 0.1), (10, 0.7)):
                values.append(_cpu_per_copy(subject, count, gap))
    return values


def _cpu_per_copy(subject, count, gap):
    before = subject.cpu()
    owner, reader = subject.clipboard.owner("burst", count, int(gap * 1e6), f"cpu {gap} ")
    reader.wait_line("done", count * gap + 10)
    subject.settle(60)
    spent = subject.cpu() - before
    kept = len(subject.texts(f"cpu {gap} ", count + 5))
    owner.stop()
    if kept < count * 0.9:
        raise ValueError(f"only {kept} of {count} were kept")
    return spent / count * 1000


def _burst_size(quick):
    return 1_000 if quick else 10_000


def _burst_figures(quick):
    count = _burst_size(quick)
    return [Figure(f"kept of {count:,} copies 5 ms apart", "", count, at_least=True),
            Figure(f"read of {count:,} copies 5 ms apart", "", judged=False),
            Figure("CPU per copy of the burst", "ms", judged=False)]


def _measure_burst(kind, quick):
    count = _burst_size(quick)
    with kind(limit=count + 100) as subject:
        subject.start()
        subject.settle()
        before = subject.cpu()
        owner, reader = subject.clipboard.owner("burst", count, 5000, "burst ")
        read = int(reader.wait_line("done", count * 0.005 * 1.5 + 20).split()[1])
        subject.settle(60)
        spent = subject.cpu() - before
        kept = len(set(subject.texts("burst ", count + 100)))
        owner.stop()
        return [kept, read, spent / count * 1000]


def _memory_figures(_):
    return [Figure("peak memory on a text of 53 MB", "MB", 150)]


def _measure_memory(kind, _):
    with kind() as subject:
        subject.start()
        subject.settle()
        owner, reader = subject.clipboard.owner("large", LARGE)
        reader.wait_line("copied", 20)
        subject.settle(60)
        peak = measure.total(measure.peak_rss, subject.pids()) / 1e6
        kept = subject.kept_bytes()
        owner.stop()
        if kept < LARGE:
            raise ValueError(f"only {kept} bytes were kept")
        return [peak]


STEPS = [
    Step("start to first capture", _capture_figures, _measure_capture),
    Step("copy to history", _latency_figures, _measure_latency),
    Step("CPU per clip", _cpu_figures, _measure_cpu),
    Step("a burst", _burst_figures, _measure_burst),
    Step("a text of 53 MB", _memory_figures, _measure_memory),
]
