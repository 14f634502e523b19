"""Holds every #include and every QML import against the table of arrows in ARCHITECTURE.md."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
ROW = re.compile(r"^\| `src/(\w+)` \|[^|]*\|([^|]*)\|$", re.M)
INCLUDE = re.compile(r'^\s*#\s*include\s+"(\w+)/([^"]+)"', re.M)
IMPORT = re.compile(r"^\s*import\s+Velm\.(\w+)", re.M)
# Folders of platform/ that hold a back-end; only makePlatform.cpp and their own kind may name one.
BACK_ENDS = {"x11", "wayland", "canberra", "dbus", "xdg", "qt", "null", "offscreen"}
# Platform headers without a back-end behind them that the program's composition root may use as well.
CHOOSERS = {"src/platform/makePlatform.cpp"}


def allowed_arrows():
    rows = ROW.findall((ROOT / "ARCHITECTURE.md").read_text())
    return {folder: set(re.findall(r"\w+", targets)) | {folder} for folder, targets in rows}


def names_back_end(path):
    return any(part in BACK_ENDS for part in pathlib.PurePath(path).parts[:-1])


def faults():
    arrows = allowed_arrows()
    folders = {p.name for p in (ROOT / "src").iterdir() if p.is_dir()}
    if folders != set(arrows):
        yield f"ARCHITECTURE.md's table and src/ differ: {sorted(folders ^ set(arrows))}"
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix not in {".h", ".cpp", ".qml"}:
            continue
        name = str(path.relative_to(ROOT))
        folder = path.relative_to(ROOT / "src").parts[0]
        text = path.read_text()
        found = [(target, f"{target}/{rest}") for target, rest in INCLUDE.findall(text)]
        found += [(module.lower(), f"Velm.{module}") for module in IMPORT.findall(text)]
        for target, what in found:
            if target in folders and target not in arrows.get(folder, set()):
                yield f"{name}: {folder} may not know {what}"
            if names_back_end(what) and not names_back_end(name) and name not in CHOOSERS:
                yield f"{name}: only makePlatform.cpp names a back-end ({what})"


if __name__ == "__main__":
    listed = list(faults())
    print("\n".join(listed))
    sys.exit(1 if listed else 0)
