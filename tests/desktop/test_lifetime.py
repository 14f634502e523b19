"""Starting, ending and starting again: what is saved, and what the command line says."""

import json
import signal
import stat
import unittest

from rig import Desktop, Velm, program_path, run, wait_for
from rig.case import DesktopCase

# Saves wait this long for the next one.
DEBOUNCE = 0.35


class EndingAndStartingAgain(DesktopCase):
    def saved_texts(self):
        path = self.desktop.home.data / "clipboard.json"
        return [clip["text"] for clip in json.loads(path.read_text(encoding="utf-8"))] if path.exists() else []

    def copy(self, text):
        self.clipboard.copy_text(text)
        return self.velm.wait_clip(text)

    def test_every_polite_signal_saves_what_was_just_copied(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number.name):
                self.copy(f"just before {number.name}")
                self.assertEqual(self.velm.end(number), 0)
                self.assertEqual(self.saved_texts()[0], f"just before {number.name}")
                self.velm.start()
                self.assertEqual(self.velm.texts()[0], f"just before {number.name}")

    def test_quit_saves_and_ends(self):
        self.copy("just before quit")
        result = self.velm.run("quit")
        self.assertEqual(result.returncode, 0)
        self.assertEqual(self.velm.child.wait(), 0)
        self.assertEqual(self.saved_texts()[0], "just before quit")
        self.velm.start()

    def test_a_kill_loses_at_most_the_last_moment(self):
        self.copy("long before the kill")
        wait_for(lambda: "long before the kill" in self.saved_texts(), DEBOUNCE + 3, "the file")
        self.copy("just before the kill")
        self.velm.end(signal.SIGKILL)
        self.velm.start()
        texts = [text for text in self.velm.texts() if "the kill" in text]
        self.assertIn(texts, (["long before the kill"], ["just before the kill", "long before the kill"]))

    def test_pins_and_settings_outlive_a_restart(self):
        clip = self.copy("pinned for good")
        self.velm.do("clip", "pin", clip["id"])
        self.addCleanup(self.velm.ask, "clip", "delete", clip["id"])  # it would stay on top
        self.velm.do("prefs", "set", "hoverDelay", 0.4)
        self.addCleanup(self.velm.ask, "prefs", "reset", "hoverDelay")
        self.velm.restart()
        kept = next(kept for kept in self.velm.clips() if kept["id"] == clip["id"])
        self.assertTrue(kept["pinned"])
        self.assertEqual(float(self.velm.do("prefs", "get", "hoverDelay")), 0.4)

    def test_what_is_on_the_clipboard_at_start_is_not_captured(self):
        self.velm.end()
        self.clipboard.copy_text("copied while Velm was away")
        wait_for(lambda: self.clipboard.text() == "copied while Velm was away", 3, "the copy")
        self.velm.start()
        self.copy("copied when it was back")
        self.assertNotIn("copied while Velm was away", self.velm.texts())

    def test_the_history_is_for_its_person_only(self):
        self.copy("private")
        path = self.desktop.home.data / "clipboard.json"
        wait_for(lambda: "private" in self.saved_texts(), 3, "the file")
        self.assertEqual(stat.S_IMODE(path.stat().st_mode), 0o600)
        self.assertEqual(stat.S_IMODE(path.parent.stat().st_mode), 0o700)

    def test_a_setting_changed_by_hand_is_taken_up(self):
        self.velm.do("prefs", "set", "hoverDelay", 0.3)
        self.addCleanup(self.velm.ask, "prefs", "reset", "hoverDelay")
        values = json.loads(self.desktop.home.settings.read_text())
        self.desktop.home.write_settings(**{**values, "hoverDelay": 0.7, "ofSomebodyElse": [1]})
        wait_for(lambda: float(self.velm.do("prefs", "get", "hoverDelay")) == 0.7, 5, "the change by hand")
        self.velm.do("prefs", "set", "showPeek", "true")
        self.assertEqual(json.loads(self.desktop.home.settings.read_text())["ofSomebodyElse"], [1])


class TheCommandLine(DesktopCase):
    def assert_usage(self, *words):
        result = self.velm.run(*words)
        self.assertEqual(result.returncode, 2, result)
        self.assertIn("usage", result.stderr.lower())
        self.assertEqual(result.stdout, "")

    def test_words_that_make_no_sense_are_answered_with_the_usage(self):
        for words in (["nonsense"], ["clip", "nonsense"], ["clip", "use"], ["clip", "list", "--nonsense"],
                      ["prefs", "set", "hoverDelay"], ["--nonsense"], ["clip", "pin", "a", "b"],
                      ["activity"], ["status", "more"]):
            with self.subTest(words):
                self.assert_usage(*words)

    def test_what_cannot_be_done_is_refused_in_one_sentence(self):
        for words in (["clip", "use", "FFFFFFFF"], ["clip", "pin", ""], ["open", "nowhere"],
                      ["settings", "nowhere"]):
            with self.subTest(words):
                result = self.velm.run(*words)
                self.assertIn(result.returncode, (1, 2), result)
                self.assertTrue(result.stderr.strip(), result)
                if result.returncode == 1:
                    self.assertRegex(result.stderr, r"\Avelm: [^\n]+\n\Z")

    def test_the_command_line_says_what_the_bus_says(self):
        self.clipboard.copy_text("said twice")
        self.velm.wait_clip("said twice")
        result = self.velm.run("clip", "list", "--json")
        self.assertEqual(result.returncode, 0)
        self.assertEqual(json.loads(result.stdout)[0]["text"], "said twice")

    def test_a_script_can_show_and_take_back_an_activity(self):
        self.velm.do("activity", "Backup", "42 %", "--progress", "0.42", "--sticky", "--id", "backup")
        activity = self.velm.status()["activity"]
        self.assertEqual((activity["leading"], activity["progress"], activity["sticky"]), ("Backup", 0.42, True))
        self.velm.ask("dismiss", "other")
        self.assertIn("activity", self.velm.status())
        self.velm.do("dismiss", "backup")
        self.assertNotIn("activity", self.velm.status())


class WithoutARunningVelm(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())

    def run_velm(self, *words, without=(), limit=60):
        env = {key: value for key, value in self.desktop.env.items() if key not in without}
        return run([program_path(), *words], env, limit, cwd=self.desktop.home.home)

    def test_a_command_says_that_none_runs(self):
        for without in ((), ("DBUS_SESSION_BUS_ADDRESS",)):
            result = self.run_velm("status", without=without)
            self.assertEqual(result.returncode, 3, result)
            self.assertRegex(result.stderr, r"\Avelm: [^\n]+\n\Z")

    def test_help_and_version_need_nothing(self):
        bare = ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS")
        self.assertRegex(self.run_velm("--version", without=bare).stdout, r"\d+\.\d+")
        answer = self.run_velm("--help", without=bare)
        self.assertEqual(answer.returncode, 0)
        self.assertIn("clip", answer.stdout)

    def test_without_a_display_it_says_so_and_ends(self):
        result = self.run_velm(without=("DISPLAY", "WAYLAND_DISPLAY"), limit=10)
        self.assertEqual(result.returncode, 1, result)
        self.assertRegex(result.stderr, r"\A[^\n]+\n\Z")

    def test_the_self_test_passes_and_touches_no_real_data(self):
        result = self.run_velm("--selftest", without=("DISPLAY", "DBUS_SESSION_BUS_ADDRESS"))
        self.assertEqual(result.returncode, 0, result)
        last = result.stdout.strip().splitlines()[-1]
        self.assertRegex(last, r"^\d+ passed, 0 failed$")
        self.assertGreater(int(last.split()[0]), 0)
        self.assertFalse(self.desktop.home.data.exists())

    def test_pictures_are_rendered_without_a_display_and_a_bus(self):
        folder = self.desktop.home.home / "pictures"
        result = self.run_velm("--render", folder, without=("DISPLAY", "DBUS_SESSION_BUS_ADDRESS"), limit=120)
        self.assertEqual(result.returncode, 0, result)
        names = {path.stem for path in folder.glob("*.png")}
        expected = {"island-peek", "island-dropcatcher", "island-idle-activity", "settings-sections",
                    "settings-general", "settings-clipboard", "settings-about", "panel-clipboard"}
        self.assertLessEqual(expected, names)
        for path in folder.glob("*.png"):
            colours = run(["identify", "-format", "%k", path], self.desktop.env, 30).stdout
            self.assertRegex(colours, r"^\d+$", path.name)
            self.assertGreater(int(colours), 2, f"{path.name} is empty")
        self.assertFalse(self.desktop.home.data.exists())

    def test_render_without_a_folder_is_the_ordinary_start(self):
        with Velm(self.desktop) as velm:
            result = self.run_velm("--render", limit=10)
            self.assertEqual(result.returncode, 0, result)
            velm.wait_mode("expanded")


if __name__ == "__main__":
    unittest.main()
