"""The island under a hand: hovering, clicking beside, scrolling over, typing, Escape."""

import unittest

from rig import stays, wait_for
from rig.case import DesktopCase


class IslandOverAFullScreenProgram(DesktopCase):
    """A full-screen window lies below and says what reaches it."""

    compositor = True

    @classmethod
    def prepare_desktop(cls):
        _, cls.below = cls.desktop.click_window()

    def reached(self, line):
        return line in self.below.lines()

    def click_reaches_below(self, x, y, button=1):
        """Clicks at a place that no other test clicks, and waits for it below."""
        self.windows.click(x, y, button)
        wait_for(lambda: self.reached(f"press {button} {x} {y}"), 3, f"the click at {x}, {y}")

    def test_starting_takes_no_keyboard_from_the_program_in_front(self):
        front = self.windows.find("ClickWindow", by="--class")
        self.assertEqual(self.windows.active(), front)
        self.assertEqual(self.windows.focused(), front)

    def test_resting_on_the_island_opens_it(self):
        self.velm.hover()
        self.velm.wait_mode("peek")
        self.velm.wait_mode("expanded")

    def test_leaving_in_time_keeps_it_closed(self):
        self.set_for_this_test("hoverDelay", 1.0)
        self.velm.hover()
        self.velm.wait_mode("peek")
        self.windows.move_to(640, 700)
        self.velm.wait_mode("idle")
        self.assertTrue(stays(lambda: self.velm.mode() == "idle", 1.3))

    def test_the_peek_alone_remains_where_hovering_does_not_open(self):
        self.set_for_this_test("openOnHover", "false")
        self.velm.hover()
        self.velm.wait_mode("peek")
        self.assertTrue(stays(lambda: self.velm.mode() == "peek", 0.6))

    def test_a_click_beside_the_panel_reaches_the_window_below_and_closes(self):
        self.velm.open_by_hover()
        x, y, width, height = self.velm.island()
        self.click_reaches_below(int(x) - 40, int(y + height / 2))
        self.velm.wait_mode("idle")

    def test_a_click_under_the_panel_reaches_the_window_below(self):
        self.velm.open_by_hover()
        x, y, width, height = self.velm.island()
        self.click_reaches_below(int(x + width / 2), int(y + height) + 20)
        self.velm.wait_mode("idle")

    def test_a_click_into_the_panel_stays_there(self):
        self.velm.open_by_hover()
        x, y, width, height = self.velm.island()
        inside = (int(x + width / 2), int(y + height) - 3)
        self.windows.click(*inside)
        self.click_reaches_below(int(x) - 60, 300)
        self.assertFalse(self.reached("press 1 {} {}".format(*inside)))

    def test_a_scroll_over_the_closed_island_passes(self):
        self.set_for_this_test("openOnHover", "false")
        self.set_for_this_test("showPeek", "false")
        x, y, width, _ = self.velm.island()
        self.click_reaches_below(int(x + width / 2) + 3, int(y) + 4, button=4)
        self.assertEqual(self.velm.mode(), "idle")

    def test_a_click_on_the_peek_passes(self):
        self.set_for_this_test("openOnHover", "false")
        self.velm.hover()
        self.velm.wait_mode("peek")
        x, y, width, _ = self.velm.island()
        self.click_reaches_below(int(x + width / 2) + 5, int(y) + 6)

    def test_opening_by_hover_leaves_the_keyboard_where_it_was(self):
        self.velm.open_by_hover()
        count = len([line for line in self.below.lines() if line.startswith("key")])
        self.windows.key("a")
        wait_for(lambda: len([line for line in self.below.lines() if line.startswith("key")]) > count, 3,
                 "the key below")
        self.assertEqual(self.velm.mode(), "expanded")

    def test_escape_closes_and_gives_the_keyboard_back(self):
        front = self.windows.find("ClickWindow", by="--class")
        self.windows.activate(front)
        self.velm.open_by_hover()
        x, y, _, _ = self.velm.island()
        self.windows.click(int(x) + 120, int(y) + 18)
        wait_for(lambda: self.windows.focused() == self.velm.window(), 3, "the keyboard in the panel")
        self.windows.key("Escape")
        self.velm.wait_mode("idle")
        wait_for(lambda: self.windows.focused() == front, 3, "the keyboard back below")
        self.assertEqual(self.windows.active(), front)

    def test_the_open_panel_is_above_a_full_screen_window(self):
        self.velm.do("open", "clipboard")
        self.velm.wait_mode("expanded")
        stack = [window for window, width, height, _, _ in self.windows.top_level() if width >= 800]
        self.assertEqual(stack[0], self.velm.window())

    def test_a_second_plain_start_opens_the_island_of_the_first(self):
        result = self.velm.run()
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.velm.wait_mode("expanded")


class TypingIntoThePanel(DesktopCase):
    """A text editor has the keyboard; the panel borrows it."""

    @classmethod
    def prepare_desktop(cls):
        cls.editor = cls.desktop.text_editor(cls.desktop.home.home / "letter.txt")

    def test_typing_reaches_the_search_and_then_the_editor_again(self):
        for text in ("a needle to find", "some hay", "more hay"):
            self.clipboard.copy_text(text)
            self.velm.wait_clip(text)
        self.editor.activate()

        self.velm.do("open", "clipboard")
        wait_for(lambda: self.windows.focused() == self.velm.window(), 3, "the keyboard in the panel")
        self.windows.type("needle")
        self.windows.key("Return")
        wait_for(lambda: self.clipboard.text() == "a needle to find", 3, "the found clip on the clipboard")

        self.velm.close()
        wait_for(lambda: self.windows.active() == self.editor.window and
                 self.windows.focused() != self.velm.window(), 3, "the keyboard back in the editor")
        self.windows.type("dear")
        self.editor.wait_text("dear")


if __name__ == "__main__":
    unittest.main()
