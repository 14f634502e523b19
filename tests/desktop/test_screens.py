"""Screens that change size, and compositors that come and go, while Velm runs."""

import unittest

from rig import wait_for
from rig.case import DesktopCase


class ScreensAndCompositors(DesktopCase):
    def window_is_at(self, x, y):
        return self.windows.geometry(self.velm.window())[:2] == (x, y)

    def test_another_resolution_is_followed(self):
        self.assertTrue(self.window_is_at(240, 0))
        self.assertTrue(self.desktop.display.set_size(self.desktop.env, 1024, 700))
        self.addCleanup(self.desktop.display.set_size, self.desktop.env, 1280, 800)
        wait_for(lambda: self.window_is_at(112, 0), 5, "the window at the new middle")

        self.windows.move_to(512, 8)
        self.velm.wait_mode("expanded")
        x, _, width, _ = self.velm.island()
        self.assertEqual(x + width / 2, 512)
        self.windows.move_to(500, 650)
        self.velm.do("close")

        self.assertTrue(self.desktop.display.set_size(self.desktop.env, 1280, 800))
        wait_for(lambda: self.window_is_at(240, 0), 5, "the window back at the first middle")

    def test_a_screen_narrower_than_the_window_has_its_island_in_the_middle(self):
        self.assertTrue(self.desktop.display.set_size(self.desktop.env, 720, 600))
        self.addCleanup(self.desktop.display.set_size, self.desktop.env, 1280, 800)
        wait_for(lambda: self.window_is_at(-40, 0), 5, "the window at the new middle")
        self.windows.move_to(360, 8)
        self.velm.wait_mode("expanded")
        self.windows.move_to(20, 580)
        self.velm.do("close")

    def test_a_compositor_that_comes_and_goes_is_followed(self):
        window = self.velm.window()
        wait_for(lambda: self.windows.shape_is_limited(window), 3, "the window cut to the island")
        compositor = self.desktop.add_compositor()
        wait_for(lambda: not self.windows.shape_is_limited(window), 5, "the window whole")
        self.velm.open_by_hover()
        compositor.stop()
        wait_for(lambda: self.windows.shape_is_limited(window), 5, "the window cut to the island again")
        self.assertEqual(self.velm.mode(), "expanded")

    def test_a_window_manager_that_is_replaced_changes_nothing(self):
        self.desktop.start(["openbox", "--sm-disable", "--replace"])
        self.velm.open_by_hover()


if __name__ == "__main__":
    unittest.main()
