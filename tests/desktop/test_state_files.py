"""State files that are not what they should be: the prescribed fallback, and nothing on disk is lost."""

import json
import unittest

from rig import Desktop, Velm, wait_for

CLIP = {
    "id": "0A6B3D1C-53D7-4F1C-8E52-1B1D3F0A9C11", "kind": "text", "text": "from the file", "filePaths": [],
    "sourceApp": "Editor", "sourceBundleID": "editor", "date": "2026-01-31T17:04:05Z", "pinned": False,
    "useCount": 3, "fingerprint": "f" * 64,
}
LARGE = 500_000_000


class StateFiles(unittest.TestCase):
    def setUp(self):
        self.begin_anew()

    def begin_anew(self):
        """A desktop on which nothing has run yet."""
        self.desktop = self.enterContext(Desktop())
        self.home = self.desktop.home
        self.home.data.mkdir(parents=True)
        self.path = self.home.data / "clipboard.json"

    def start(self):
        return self.desktop.enter_context(Velm(self.desktop))

    def assert_set_aside(self, content):
        """Exactly one copy beside the file, with what was in it."""
        copies = list(self.path.parent.glob("clipboard.json.unreadable-*"))
        self.assertEqual(len(copies), 1, list(self.path.parent.iterdir()))
        self.assertEqual(copies[0].read_bytes(), content)

    def assert_falls_back(self, content):
        """An empty history; the file kept; new copies are saved."""
        self.path.write_bytes(content)
        velm = self.start()
        self.assertEqual(velm.clips(), [])
        self.assert_set_aside(content)
        self.assertEqual(self.path.read_bytes(), content)
        self.assertEqual(velm.log_text().count("[Velm] "), 1, velm.log_text())

        self.desktop.clipboard.copy_text("a new beginning")
        velm.wait_clip("a new beginning")
        wait_for(lambda: b"a new beginning" in self.path.read_bytes(), 5, "the new file")
        velm.restart()
        self.assertEqual(velm.texts(), ["a new beginning"])
        self.assert_set_aside(content)

    def test_files_that_do_not_decode_are_set_aside(self):
        bad_date = {**CLIP, "date": "yesterday"}
        missing = {key: value for key, value in CLIP.items() if key != "useCount"}
        for name, content in (
                ("garbage", b"\x00\x01 no json \xff"), ("empty", b""), ("cut off", b'[{"id": "0A6B'),
                ("another shape", b'{"clips": []}'), ("a number", b"7"),
                ("one bad record", json.dumps([CLIP, bad_date]).encode()),
                ("a record that lacks a key", json.dumps([CLIP, missing]).encode()),
                ("an unknown kind", json.dumps([{**CLIP, "kind": "video"}]).encode()),
                ("a nest of brackets", b"[" * 100_000)):
            with self.subTest(name):
                self.begin_anew()
                self.assert_falls_back(content)

    def test_unknown_keys_do_no_harm_and_are_not_lost(self):
        content = json.dumps([{**CLIP, "addedByALaterVersion": {"deep": [1, 2]}}]).encode()
        self.path.write_bytes(content)
        velm = self.start()
        self.assertEqual(velm.texts(), ["from the file"])
        self.assert_set_aside(content)  # the next save would write the record without that key

    def test_a_file_of_half_a_gigabyte_is_set_aside(self):
        with open(self.path, "wb") as file:
            file.write(b'[{"id": "')
            file.truncate(LARGE)
        velm = self.start()
        self.assertEqual(velm.clips(), [])
        copies = list(self.path.parent.glob("clipboard.json.unreadable-*"))
        self.assertEqual([copy.stat().st_size for copy in copies], [LARGE])
        self.assertEqual(self.path.stat().st_size, LARGE)

    def test_a_history_that_is_a_folder_is_left_alone(self):
        self.path.mkdir()
        (self.path / "inside.txt").write_text("kept")
        velm = self.start()
        self.assertEqual(velm.clips(), [])
        self.desktop.clipboard.copy_text("kept in memory")
        velm.wait_clip("kept in memory")
        velm.restart()
        found = [path for path in self.home.data.rglob("inside.txt")]
        self.assertTrue(found)
        self.assertEqual(found[0].read_text(), "kept")


class SettingsFiles(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.path = self.desktop.home.settings
        self.path.parent.mkdir(parents=True)

    def test_settings_that_do_not_decode_are_the_defaults_and_set_aside(self):
        for name, content in (("garbage", b"\xff{"), ("a list", b"[1, 2]"), ("cut off", b'{"hoverDelay": ')):
            with self.subTest(name):
                for path in self.path.parent.iterdir():
                    path.unlink()
                self.path.write_bytes(content)
                with Velm(self.desktop) as velm:
                    self.assertEqual(float(velm.do("prefs", "get", "hoverDelay")), 0.25)
                    velm.do("prefs", "set", "hoverDelay", 0.5)
                    self.assertEqual(float(velm.do("prefs", "get", "hoverDelay")), 0.5)
                copies = list(self.path.parent.glob("settings.json.unreadable-*"))
                self.assertEqual([copy.read_bytes() for copy in copies], [content])

    def test_a_settings_file_that_is_a_folder_is_left_alone(self):
        self.path.mkdir()
        (self.path / "inside.txt").write_text("kept")
        with Velm(self.desktop) as velm:
            self.assertEqual(float(velm.do("prefs", "get", "hoverDelay")), 0.25)
            velm.ask("prefs", "set", "hoverDelay", "0.5")
            self.desktop.clipboard.copy_text("captured all the same")
            velm.wait_clip("captured all the same")
        self.assertEqual((self.path / "inside.txt").read_text(), "kept")

    def test_values_of_a_wrong_type_read_as_neutral_and_unknown_keys_stay(self):
        values = {"hoverDelay": "soon", "showPeek": 1, "lastTab": 7, "disabledTabs": "files", "mine": {"a": None}}
        self.path.write_text(json.dumps(values))
        with Velm(self.desktop) as velm:
            self.assertEqual(velm.status()["tab"], "files")
            # No peek first and no delay: 1 is no boolean, and "soon" is no number.
            velm.hover()
            wait_for(lambda: self.assertNotEqual(velm.mode(), "peek") or velm.mode() == "expanded", 3,
                     "the island to open at once")
            velm.do("prefs", "set", "playSounds", "false")
            self.assertEqual(json.loads(self.path.read_text())["mine"], {"a": None})


if __name__ == "__main__":
    unittest.main()
