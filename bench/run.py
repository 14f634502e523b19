"""Measures Velm beside a peer and prints a table: run.py PROGRAM [idle] [clipboard] [--quick]."""

import argparse
import pathlib
import sys
import time

import clipboard
import idle
from contenders import VelmContender, contenders
from table import render

SUBJECTS = {"idle": idle, "clipboard": clipboard}


def main():
    parser = argparse.ArgumentParser(prog="./dev bench", description="Measures Velm beside a peer.")
    parser.add_argument("program", type=pathlib.Path, help="the velm to measure")
    parser.add_argument("subjects", nargs="*", metavar="SUBJECT", help="idle, clipboard (default: both)")
    parser.add_argument("--quick", action="store_true", help="shorter and rougher")
    given = parser.parse_args()
    unknown = [name for name in given.subjects if name not in SUBJECTS]
    if unknown:
        parser.error(f"no such subject: {', '.join(unknown)}; there are {', '.join(SUBJECTS)}")
    if not given.program.is_file():
        parser.error(f"there is no program at {given.program}")
    VelmContender.program = str(given.program.resolve())
    if len(contenders()) == 1:
        print("copyq is not installed: Velm is measured alone", file=sys.stderr)

    began = time.monotonic()
    figures, notes = [], []
    for name in given.subjects or SUBJECTS:
        figures += SUBJECTS[name].run(given.quick, _say)
        notes += SUBJECTS[name].NOTES
    print()
    print(render(figures, notes=notes))
    print(f"\nmeasured in {time.monotonic() - began:.0f} s{' (quick: rough)' if given.quick else ''}")
    return 0


def _say(text):
    print(text, file=sys.stderr, flush=True)


if __name__ == "__main__":
    sys.exit(main())
