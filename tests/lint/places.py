"""Keeps time in the run loop and colours in the theme."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
SKIPPED = {"build", "build-release", "build-asan", "build-tsan", ".git", "__pycache__"}

# (what is looked for, where it may stand, why not elsewhere)
RULES = [
    (
        re.compile(r"\bQTimer\b|\bQDateTime::currentDateTime|\bQTime::currentTime|\bQDate::currentDate"
                   r"|\bQElapsedTimer\b|steady_clock::now|system_clock::now|\bsleep_for\b|\bQThread::m?u?sleep\b"),
        re.compile(r"^src/platform/runloop/|^tests/|^rig/|^src/platform/pasteboard/x11/"),
        "time comes from RunLoop",
    ),
    (re.compile(r"^\s*Timer\s*\{", re.M), re.compile(r"^$"), "time comes from RunLoop"),
    (
        re.compile(r"(?:color\w*|QColor)\W{1,4}(?:QStringLiteral\()?[\"']#[0-9A-Fa-f]{3,8}\b|:\s*\"#[0-9A-Fa-f]{3,8}\"", re.I),
        re.compile(r"^src/theme/|^src/panels/preview/|^tests/"),
        "colours come from Ink",
    ),
]
SUFFIXES = {".h", ".cpp", ".qml", ".py"}


def faults():
    for path in sorted(ROOT.rglob("*")):
        name = path.relative_to(ROOT)
        if path.suffix not in SUFFIXES or name.parts[0] in SKIPPED or not path.is_file():
            continue
        text = path.read_text(errors="replace")
        for pattern, place, reason in RULES:
            if place.search(str(name)) or (path.suffix == ".py" and "Timer" in pattern.pattern):
                continue
            for match in pattern.finditer(text):
                line = text.count("\n", 0, match.start()) + 1
                yield f"{name}:{line}: {match.group().strip()}: {reason}"


if __name__ == "__main__":
    listed = list(faults())
    print("\n".join(listed))
    sys.exit(1 if listed else 0)
