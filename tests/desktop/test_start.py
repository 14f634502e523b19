"""Desktops on which something is missing: Velm starts all the same."""

import json
import unittest

from rig import Desktop, Velm, wait_for


class StartingOnPoorDesktops(unittest.TestCase):
    def desktop(self, **parts):
        desktop = self.enterContext(Desktop(**parts))
        desktop.home.write_settings(playSounds=False)
        return desktop

    def assert_works(self, velm):
        """It captures, opens and closes."""
        velm.desktop.clipboard.copy_text("captured here")
        velm.wait_clip("captured here")
        velm.open_by_hover()
        velm.close()

    def test_with_everything(self):
        with Velm(self.desktop(compositor=True)) as velm:
            self.assert_works(velm)
            self.assertFalse(velm.desktop.windows.shape_is_limited(velm.window()))

    def test_without_a_compositor_the_window_is_cut_to_the_island(self):
        with Velm(self.desktop()) as velm:
            self.assert_works(velm)
            self.assertTrue(velm.desktop.windows.shape_is_limited(velm.window()))

    def test_without_a_window_manager(self):
        with Velm(self.desktop(window_manager=False)) as velm:
            self.assert_works(velm)

    def test_without_a_window_manager_escape_gives_the_keyboard_back(self):
        desktop = self.desktop(window_manager=False)
        with Velm(desktop) as velm:
            velm.do("open", "clipboard")
            wait_for(lambda: desktop.windows.focused() == velm.window(), 3, "the keyboard in the panel")
            desktop.windows.key("Escape")
            velm.wait_mode("idle")
            wait_for(lambda: desktop.windows.focused() != velm.window(), 3, "the keyboard to be given back")

    def test_without_a_bus(self):
        desktop = self.desktop(bus=False)
        velm = self.enterContext(Velm(desktop))
        path = desktop.home.data / "clipboard.json"

        def captured():
            # Nobody can be asked, and a copy made before it watches is not captured: so again and again.
            desktop.clipboard.copy_text("captured without a bus")
            return path.exists() and "captured without a bus" in path.read_text()
        wait_for(captured, 15, "the file", pause=0.6)
        self.assertTrue(velm.is_running)
        self.assertEqual(velm.end(), 0)
        self.assertEqual(json.loads(path.read_text())[0]["text"], "captured without a bus")

    def test_without_a_folder_that_can_be_written_it_keeps_the_history_in_memory(self):
        desktop = self.desktop()
        desktop.home.data_home.mkdir(parents=True, exist_ok=True)
        desktop.home.data.write_text("a file where the folder should be")
        with Velm(desktop) as velm:
            self.assert_works(velm)
        self.assertEqual(desktop.home.data.read_text(), "a file where the folder should be")

    def test_under_the_offscreen_platform_every_command_works(self):
        desktop = self.desktop()
        with Velm(desktop, env={"QT_QPA_PLATFORM": "offscreen"}) as velm:
            self.assertEqual(velm.clips(), [])
            velm.do("open", "clipboard")
            velm.wait_mode("expanded")
            velm.do("close")


class TheDisplayGoes(unittest.TestCase):
    def test_velm_ends_with_its_display_and_loses_nothing_older_than_a_moment(self):
        with Desktop() as desktop:
            velm = desktop.enter_context(Velm(desktop))
            desktop.clipboard.copy_text("before the display went")
            velm.wait_clip("before the display went")
            path = desktop.home.data / "clipboard.json"
            wait_for(lambda: path.exists() and "before the display went" in path.read_text(), 3, "the file")
            desktop.display.stop()
            wait_for(lambda: not velm.is_running, 5, "Velm to end")
            self.assertEqual(json.loads(path.read_text())[0]["text"], "before the display went")


if __name__ == "__main__":
    unittest.main()
