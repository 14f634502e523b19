"""The programs that are measured, behind the same few questions."""

import json
import pathlib
import shutil
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))

from rig import Child, Desktop, NotInTime, Velm, run, wait_for  # noqa: E402
from rig import measure  # noqa: E402


_LINE_END = "String.fromCharCode(10)"  # copyq takes backslashes out of its arguments


class Contender:
    """A clipboard program on a desktop of its own, so that none wakes another."""

    name = ""

    def __init__(self, history=0, limit=200):
        self.desktop = Desktop(compositor=True)
        self.clipboard = self.desktop.clipboard
        self.prepare(history, limit)

    def close(self):
        self.stop()
        self.desktop.close()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    # What each program says for itself

    def prepare(self, history, limit):
        """A history of that many texts, "old 0" the oldest, before the start."""
        raise NotImplementedError

    def launch(self):
        """Starts the process and returns at once."""
        raise NotImplementedError

    def wait_ready(self):
        """Until it captures."""
        raise NotImplementedError

    def stop(self):
        raise NotImplementedError

    def wait_shown(self, text):
        """Blocks until the history shows it, asking as quickly as the program answers."""
        raise NotImplementedError

    def rest_from_watching(self):
        """Ends what wait_shown has begun."""
        raise NotImplementedError

    def has(self, text):
        """Whether the history holds what was copied last."""
        raise NotImplementedError

    def texts(self, prefix, limit):
        """The texts of the history that begin with `prefix`, newest first, of the newest `limit`."""
        raise NotImplementedError

    # The same for all

    def start(self):
        self.launch()
        self.wait_ready()
        return self

    def pids(self):
        return measure.children_of(self.child.pid)

    def cpu(self):
        return measure.total(measure.cpu, self.pids())

    def wait_has(self, text, limit=20.0):
        wait_for(lambda: self.has(text), limit, f"{self.name} to show {text!r}", pause=0.05)

    def kept_bytes(self):
        """How much of the last large text it has kept."""
        raise NotImplementedError

    def open_and_close(self):
        raise NotImplementedError

    def settle(self, limit=30.0):
        """Until it rests: hardly any processor time in two seconds."""
        def rests():
            before = self.cpu()
            time.sleep(2)
            return self.cpu() - before < 0.01
        wait_for(rests, limit, f"{self.name} to rest")


class VelmContender(Contender):
    name = "velm"
    program = None
    capture_step = 0.002  # seconds between copies that it keeps every one of

    def prepare(self, history, limit):
        home = self.desktop.home
        home.write_settings(clipboardLimit=limit)
        if history:
            home.write_state("clipboard.json", json.dumps([_clip(i) for i in reversed(range(history))]))
        self.velm = Velm(self.desktop, program=self.program)

    def launch(self):
        self.child = Child([self.program], self.velm.env, self.velm.log)
        self.velm.child = self.child

    def wait_ready(self):
        wait_for(self.velm.is_up, 30, "velm to come up", pause=0.01)

    def stop(self):
        self.velm.stop()

    def has(self, text):
        # One row is asked for, so that the question is a cheap one.
        return json.loads(self.velm.ask("clip", "list", "--search", text, "--json").out) != []

    def wait_shown(self, text):
        while not self.has(text):
            pass

    def rest_from_watching(self):
        pass

    def kept_bytes(self):
        return sum(path.stat().st_size for path in self.desktop.home.data.glob("clipboard.json"))

    def texts(self, prefix, limit):
        clips = json.loads(self.velm.ask("clip", "list", "--search", prefix, "--json").out)
        return [clip["text"] for clip in clips if clip["text"].startswith(prefix)]

    def open_and_close(self):
        self.velm.do("open", "clipboard")
        self.velm.wait_mode("expanded")
        self.velm.do("close")


class CopyQContender(Contender):
    name = "copyq"
    capture_step = 0.05  # quicker ones it leaves out

    def prepare(self, history, limit):
        self.env = {**self.desktop.env, "QT_QPA_PLATFORM": "xcb"}
        self._watcher = None
        self.child = None
        configuration = self.desktop.home.config_home / "copyq"
        configuration.mkdir(parents=True)
        (configuration / "copyq.conf").write_text(
            f"[Options]\nmaxitems={limit}\ndisable_tray=true\nautocompletion=false\n", encoding="utf-8")
        if history:
            self.start()
            self.script(f"var items = []; for (var i = 0; i < {history}; ++i) items.push('old ' + i);"
                        "write.apply(this, [0].concat(items.map(function(t) {"
                        " return {'text/plain': t} })))", limit=120)
            self.stop()

    def script(self, text, limit=20.0):
        result = run(["copyq", "eval", text], self.env, limit)
        if result.returncode != 0:
            raise RuntimeError(f"copyq eval: {result.stderr}")
        return result.stdout

    def launch(self):
        self.child = Child(["copyq"], self.env, self.desktop.log)

    def wait_ready(self):
        def answers():
            return run(["copyq", "eval", "monitoring()"], self.env, 10).stdout.strip() == "true"
        wait_for(answers, 30, "copyq to come up", pause=0.2)
        # Its watching process comes later than its server does.
        wait_for(lambda: len(self.pids()) > 1, 20, "copyq's watcher")

    def stop(self):
        if self._watcher:
            self._watcher.stop()
            self._watcher = None
        if self.child:
            run(["copyq", "exit"], self.env, 20)
            self.child.stop()

    def has(self, text):
        return self.script("print(str(read(0)))") == text

    def kept_bytes(self):
        return int(self.script("print(read(0).length)"))

    def texts(self, prefix, limit):
        text = self.script(f"for (var i = 0; i < Math.min(size(), {limit}); ++i)"
                           f" print(str(read(i)) + {_LINE_END})", limit=60)
        return [line for line in text.splitlines() if line.startswith(prefix)]

    def seen(self):
        """A script that runs on and prints each new first item; a read of the next such line."""
        if not self._watcher:
            script = (f"var last = ''; for (;;) {{ var t = str(read(0));"
                      f" if (t != last) {{ last = t; print(t + {_LINE_END}) }} }}")
            self._watcher = Child(["copyq", "eval", script], self.env, self.desktop.log, stdout=subprocess.PIPE)
        return self._watcher.process.stdout.readline().decode().strip()

    def wait_shown(self, text):
        while self.seen() != text:
            pass

    def rest_from_watching(self):
        self._watcher.stop()
        self._watcher = None

    def open_and_close(self):
        for word in ("show", "hide"):
            run(["copyq", word], self.env, 20)


def _clip(number):
    text = f"old {number}"
    return {"id": f"{number:08X}-0000-4000-8000-000000000000", "kind": "text", "text": text, "filePaths": [],
            "sourceApp": "Bench", "sourceBundleID": "bench",
            "date": f"2026-01-01T{number // 3600 % 24:02}:{number // 60 % 60:02}:{number % 60:02}Z",
            "pinned": False, "useCount": 0, "fingerprint": f"{number:064x}"}


def contenders():
    """Those that this machine has."""
    return [VelmContender] + ([CopyQContender] if shutil.which("copyq") else [])


__all__ = ["Contender", "CopyQContender", "NotInTime", "VelmContender", "contenders", "measure"]
