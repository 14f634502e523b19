"""Clips given back: pasted where the person types, and offered when their program has gone."""

import unittest

from rig import stays, wait_for
from rig.case import DesktopCase
from rig.pictures import png, png_size


class PastingIntoOtherPrograms(DesktopCase):
    def setUp(self):
        super().setUp()
        self.editor = self.desktop.text_editor(self.desktop.home.home / f"{self._testMethodName}.txt")
        self.addCleanup(self.editor.stop)

    def copy(self, *texts):
        for text in texts:
            self.clipboard.copy_text(text)
            self.velm.wait_clip(text)
        self.editor.activate()

    def test_control_return_in_the_panel_pastes_where_the_person_types(self):
        self.copy("pasted from the panel")
        self.velm.do("open", "clipboard")
        wait_for(lambda: self.windows.focused() == self.velm.window(), 3, "the keyboard in the panel")
        self.windows.key("ctrl+Return")
        self.velm.wait_mode("idle")
        self.editor.wait_text("pasted from the panel")

    def test_the_second_row_is_pasted_after_an_arrow_down(self):
        self.copy("the older row", "the newer row")
        self.velm.do("open", "clipboard")
        wait_for(lambda: self.windows.focused() == self.velm.window(), 3, "the keyboard in the panel")
        self.windows.key("Down", "ctrl+Return")
        self.editor.wait_text("the older row")

    def test_a_command_pastes_too(self):
        self.copy("pasted by a command", "a newer one")
        clip = next(clip for clip in self.velm.clips() if clip["text"] == "pasted by a command")
        self.velm.do("clip", "use", clip["id"], "--paste")
        self.editor.wait_text("pasted by a command")
        self.assertEqual(self.velm.clips()[1]["useCount"], clip["useCount"] + 1)

    def test_a_clip_pasted_from_the_hovered_panel_reaches_the_editor(self):
        self.copy("pasted after hovering")
        self.velm.do("open", "clipboard")
        self.velm.close()
        self.editor.activate()
        self.velm.open_by_hover()
        x, y, _, _ = self.velm.island()
        self.windows.click(int(x) + 120, int(y) + 18)
        wait_for(lambda: self.windows.focused() == self.velm.window(), 3, "the keyboard in the panel")
        self.windows.key("ctrl+Return")
        self.editor.wait_text("pasted after hovering")


class PastingIntoATerminal(DesktopCase):
    def test_a_terminal_gets_the_keys_that_it_takes(self):
        path = self.desktop.home.home / "typed.txt"
        bindings = "XTerm*vt100.translations: #override Ctrl Shift <Key>V: insert-selection(CLIPBOARD)"
        self.desktop.start(["xterm", "-xrm", bindings, "-e", "sh", "-c", f"cat > '{path}'"])
        window = self.windows.find("xterm", by="--class")
        self.clipboard.copy_text("pasted into the terminal")
        clip = self.velm.wait_clip("pasted into the terminal")
        self.windows.activate(window)
        self.velm.do("clip", "use", clip["id"], "--paste")

        def typed():
            self.windows.key("Return")
            return path.exists() and path.read_text().strip()
        self.assertEqual(wait_for(typed, 5, "the line in the terminal", pause=0.3), "pasted into the terminal")


class OwnersThatQuit(DesktopCase):
    def assert_offered(self, text):
        wait_for(lambda: self.clipboard.text() == text, 5, f"{text!r} still on the clipboard")

    def test_a_text_outlives_its_program(self):
        owner = self.clipboard.copy_text("outlives its program")
        self.velm.wait_clip("outlives its program")
        owner.stop()
        self.assert_offered("outlives its program")
        self.assertEqual(self.velm.clips()[0]["useCount"], 0)

    def test_a_picture_outlives_its_program(self):
        owner = self.clipboard.copy_bytes(png(17, 19), "image/png")
        wait_for(lambda: self.velm.texts()[:1] == ["17×19"], 10, "the picture")
        owner.stop()
        data = wait_for(lambda: self.clipboard.read("image/png"), 5, "the picture on the clipboard")
        self.assertEqual(png_size(data), (17, 19))

    def test_files_outlive_their_program(self):
        path = self.desktop.home.home / "outlives.txt"
        path.write_text("x")
        owner = self.clipboard.copy_files([path])
        wait_for(lambda: [clip for clip in self.velm.clips() if clip["filePaths"] == [str(path)]], 5, "the files")
        owner.stop()
        uris = wait_for(lambda: self.clipboard.read("text/uri-list"), 5, "the files on the clipboard")
        self.assertEqual(uris.decode().split(), [path.as_uri()])

    def test_a_concealed_text_goes_with_its_program(self):
        self.clipboard.copy_text("open before the secret")
        self.velm.wait_clip("open before the secret")
        owner, reader = self.clipboard.owner("concealed", "a secret word")
        reader.wait_line("copied")
        wait_for(lambda: self.clipboard.text() == "a secret word", 3, "the secret on the clipboard")
        owner.stop()
        self.assertTrue(stays(lambda: self.clipboard.text() is None, 1.0, pause=0.1))

    def test_nothing_is_offered_where_the_person_does_not_want_it(self):
        self.set_for_this_test("keepAfterQuit", "false")
        owner = self.clipboard.copy_text("goes with its program")
        self.velm.wait_clip("goes with its program")
        owner.stop()
        self.assertTrue(stays(lambda: self.clipboard.text() is None, 1.0, pause=0.1))


if __name__ == "__main__":
    unittest.main()
