"""Velm for somebody without a display: demo.py PROGRAM PICTURES [--once].

Starts it on a private virtual display, copies a few things there by another program, opens the island by
moving the pointer, and saves what is to be seen. Stays until Ctrl-C, or with --once until the pictures are there.
"""

import argparse
import pathlib
import shutil
import signal
import sys

from rig import Desktop, Velm, wait_for
from rig.pictures import png

COPIES = ("A line of text, as one copies it", "https://www.debian.org/releases/bookworm/", "#2f7bff",
          "for (const auto &clip : history) {\n    print(clip.text);\n}")


def main():
    parser = argparse.ArgumentParser(prog="./dev run")
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("pictures", type=pathlib.Path)
    parser.add_argument("--once", action="store_true")
    given = parser.parse_args()
    given.pictures.mkdir(parents=True, exist_ok=True)

    signal.signal(signal.SIGTERM, lambda *_: sys.exit(0))
    with Desktop(compositor=shutil.which("picom") is not None) as desktop:
        desktop.home.write_settings(lastTab="clipboard")
        with Velm(desktop, program=str(given.program.resolve())) as velm:
            for path in show(velm, given.pictures):
                print(path, flush=True)
            if not given.once:
                stay(velm)


def show(velm, folder):
    """Works the island by hand and yields each picture as it is saved."""
    desktop = velm.desktop
    desktop.windows.move_to(640, 700)

    def rests():
        return desktop.windows.pixels() == desktop.windows.pixels()

    def at_rest(name):
        wait_for(rests, 10, "the island to rest")
        path = folder / f"{name}.png"
        desktop.windows.screenshot(path)
        return path

    wait_for(lambda: "activity" in velm.status(), 5, "the greeting")
    wait_for(lambda: "activity" not in velm.status(), 10, "the greeting to go")
    yield at_rest("closed")

    copy_things(velm)
    for attempt in range(5):
        desktop.clipboard.copy_text(f"Copied just now{'!' * attempt}")
        path = at_rest("pill")
        if "activity" in velm.status():  # it is still there, so it is in the picture
            break
    yield path

    velm.do("prefs", "set", "openOnHover", "false")
    velm.hover()
    velm.wait_mode("peek")
    yield at_rest("peek")

    desktop.windows.move_to(640, 700)
    velm.wait_mode("idle")
    velm.do("prefs", "reset", "openOnHover")
    velm.open_by_hover()
    yield at_rest("panel")


def copy_things(velm):
    clipboard = velm.desktop.clipboard
    for text in COPIES:
        clipboard.copy_text(text)
        velm.wait_clip(text)
    clipboard.copy_bytes(png(320, 200, (47, 123, 255)), "image/png")
    wait_for(lambda: velm.texts()[0] == "320×200", 10, "the picture")


def stay(velm):
    print(f"Velm runs on display {velm.desktop.env['DISPLAY']}; Ctrl-C ends it.", flush=True)
    try:
        velm.child.process.wait()
    except KeyboardInterrupt:
        print()


if __name__ == "__main__":
    sys.exit(main())
