"""A person's home folder that lasts as long as the test."""

import json
import os
import pathlib
import shutil
import tempfile

# What may pass from the caller's environment: the way to the programs, and the sanitizers' options.
_PASSED = ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS", "LSAN_OPTIONS",
           "QML_IMPORT_PATH")


class Home:
    """HOME, the XDG folders and the runtime folder, all below one temporary folder."""

    def __init__(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="velm-desktop-"))
        self.home = self.root / "home"
        self.runtime = self.root / "run"
        for folder in (self.home, self.data_home, self.config_home, self.cache_home, self.runtime):
            folder.mkdir(parents=True, exist_ok=True)
        os.chmod(self.runtime, 0o700)

    data_home = property(lambda self: self.home / ".local" / "share")
    config_home = property(lambda self: self.home / ".config")
    cache_home = property(lambda self: self.home / ".cache")

    @property
    def data(self):
        """Velm's folder of state files."""
        return self.data_home / "Velm"

    @property
    def settings(self):
        return self.config_home / "velm" / "settings.json"

    def write_settings(self, **values):
        self.settings.parent.mkdir(parents=True, exist_ok=True)
        self.settings.write_text(json.dumps(values), encoding="utf-8")

    def write_state(self, name, text):
        self.data.mkdir(parents=True, exist_ok=True)
        (self.data / name).write_text(text, encoding="utf-8")

    def environment(self):
        env = {key: os.environ[key] for key in _PASSED if key in os.environ}
        env.update(
            HOME=str(self.home), XDG_DATA_HOME=str(self.data_home), XDG_CONFIG_HOME=str(self.config_home),
            XDG_CACHE_HOME=str(self.cache_home), XDG_RUNTIME_DIR=str(self.runtime),
            LC_ALL="C.UTF-8", TZ="UTC", GIO_USE_VFS="local", GSETTINGS_BACKEND="memory", NO_AT_BRIDGE="1",
            GTK_A11Y="none", XDG_CURRENT_DESKTOP="X-Test")
        return env

    def close(self):
        shutil.rmtree(self.root, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
