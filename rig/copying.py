"""Other programs that copy, by xclip and by clients of our own."""

import os
import pathlib
import subprocess
import tempfile

from .child import Child, LineReader, run

_CLIENT_SOURCES = pathlib.Path(__file__).resolve().parent / "clients"
_CLIENTS = {"clip_owner": ["clip_owner.cpp", "SelectionOwner.cpp"], "click_window": ["click_window.cpp"]}


def client(name):
    """The path of one of our own small clients: as CMake built it (VELM_CLIENTS), else built here and now."""
    if "VELM_CLIENTS" in os.environ:
        return os.path.join(os.environ["VELM_CLIENTS"], name)
    folder = pathlib.Path(tempfile.gettempdir()) / f"velm-clients-{os.getuid()}"
    folder.mkdir(mode=0o700, exist_ok=True)
    program = folder / name
    sources = [_CLIENT_SOURCES / source for source in _CLIENTS[name]]
    newest = max(source.stat().st_mtime for source in _CLIENT_SOURCES.iterdir())
    if not program.exists() or program.stat().st_mtime < newest:
        run(["c++", "-std=c++20", "-O2", *sources, "-o", program, "-lxcb"], limit=120).check_returncode()
    return str(program)


class Clipboard:
    """The CLIPBOARD of a display: copies as other programs do, and reads what it holds."""

    def __init__(self, env, log, own):
        self._env = env
        self._log = log
        self._own = own  # takes a child to be ended with the desktop
        self._count = 0

    def copy_text(self, text):
        """xclip with this text; it stays until another program copies."""
        return self._copy(text.encode(), [])

    def copy_bytes(self, data, kind):
        """xclip with these bytes under one type only."""
        return self._copy(data, ["-t", kind])

    def copy_image(self, path):
        return self.copy_bytes(pathlib.Path(path).read_bytes(), "image/png")

    def copy_files(self, paths):
        uris = "".join(f"{pathlib.Path(path).as_uri()}\r\n" for path in paths)
        return self.copy_bytes(uris.encode(), "text/uri-list")

    def _copy(self, data, options):
        # In the foreground, so that its pid is ours to stop; its input is a file so that nothing waits.
        self._count += 1
        path = self._log.parent / f"copied-{self._count}"
        path.write_bytes(data)
        with open(path, "rb") as stream:
            child = Child(["xclip", "-quiet", "-selection", "clipboard", *options, "-in"], self._env, self._log,
                          stdin=stream)
        return self._own(child)

    def owner(self, *arguments):
        """clip_owner with these arguments, and a reader of what it prints."""
        self._count += 1
        path = self._log.parent / f"owner-{self._count}"
        child = Child([client("clip_owner"), *arguments], self._env, path, stdin=subprocess.PIPE)
        return self._own(child), LineReader(path)

    def text(self, limit=5.0):
        """What a program that pastes now would get; None when there is no text."""
        result = run(["xclip", "-selection", "clipboard", "-out"], self._env, limit)
        return result.stdout if result.returncode == 0 else None

    def read(self, kind, limit=5.0):
        result = run(["xclip", "-selection", "clipboard", "-t", kind, "-out"], self._env, limit, text=False)
        return result.stdout if result.returncode == 0 else None

    def types(self, limit=5.0):
        result = run(["xclip", "-selection", "clipboard", "-t", "TARGETS", "-out"], self._env, limit)
        return result.stdout.split() if result.returncode == 0 else []
