"""Programs that own the clipboard and misbehave, and contents that are not what they say."""

import signal
import time
import unittest

from rig import stays, wait_for
from rig.case import DesktopCase
from rig.pictures import png
from rig.measure import is_stopped

# What a person does not feel as a hitch in the island.
ANSWER_LIMIT = 0.2
# The reader gives an owner up after two seconds.
READ_DEADLINE = 2.0


class MisbehavingOwners(DesktopCase):
    compositor = True

    def slowest_answer(self, seconds):
        """The longest that the program took to answer while its island opened and closed."""
        slowest = 0.0
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            for command in (["open", "clipboard"], ["status", "--json"], ["close"], ["status", "--json"]):
                began = time.monotonic()
                self.velm.do(*command)
                slowest = max(slowest, time.monotonic() - began)
        return slowest

    def assert_next_copy_is_kept(self, text):
        self.velm.do("close")
        self.clipboard.copy_text(text)
        self.velm.wait_clip(text, READ_DEADLINE + 3)

    def copy_by_a_stopped_owner(self, text):
        """An owner that stands still before Velm has asked it anything."""
        self.velm.child.signal(signal.SIGSTOP)
        wait_for(lambda: is_stopped(self.velm.pid), 2, "Velm to stand still")
        owner = self.clipboard.copy_text(text)
        wait_for(lambda: self.clipboard.text() == text, 3, "the copy")
        owner.signal(signal.SIGSTOP)
        wait_for(lambda: is_stopped(owner.pid), 2, "the owner to stand still")
        self.velm.child.signal(signal.SIGCONT)
        return owner

    def test_a_stopped_owner_holds_nothing_up(self):
        owner = self.copy_by_a_stopped_owner("never answered")
        self.assertLess(self.slowest_answer(READ_DEADLINE + 1), ANSWER_LIMIT)
        self.assert_next_copy_is_kept("copied after the stopped one")
        self.assertNotIn("never answered", self.velm.texts())
        owner.stop()

    def test_an_owner_that_wakes_late_is_not_mixed_up_with_the_next(self):
        owner = self.copy_by_a_stopped_owner("woken late")
        self.clipboard.copy_text("copied meanwhile")
        owner.signal(signal.SIGCONT)
        self.velm.wait_clip("copied meanwhile", READ_DEADLINE + 3)
        self.assertEqual(self.velm.texts().count("copied meanwhile"), 1)
        self.assertTrue(stays(lambda: self.velm.texts()[0] == "copied meanwhile", 0.5))

    def test_an_owner_that_takes_its_time_is_waited_for(self):
        owner, _ = self.clipboard.owner("late", "worth the wait")
        self.velm.wait_clip("worth the wait", READ_DEADLINE + 1)
        owner.stop()

    def test_owners_that_break_off_leave_nothing(self):
        for way in ("silent", "short", "stalled", "dying", "vanishing"):
            with self.subTest(way):
                owner, reader = self.clipboard.owner(way, f"half of a {way} copy")
                reader.wait_line("copied")
                self.assertLess(self.slowest_answer(0.5), ANSWER_LIMIT)
                self.assert_next_copy_is_kept(f"after the {way} one")
                self.assertNotIn(f"half of a {way} copy", self.velm.texts())
                owner.stop()


class OddContents(DesktopCase):
    def assert_not_kept(self, copy):
        """The copy leaves no clip, and the next one is captured."""
        before = self.velm.texts()
        copy()
        follower = f"follower of {len(before)}"
        wait_for(lambda: self.clipboard.types(), 3, "the copy")
        self.clipboard.copy_text(follower)
        self.velm.wait_clip(follower, READ_DEADLINE + 3)
        self.assertEqual(self.velm.texts()[1:], before)

    def test_a_text_above_the_size_limit_is_said_and_not_half_kept(self):
        self.set_for_this_test("clipSizeLimitMegabytes", 1)
        owner, reader = self.clipboard.owner("large", "3000000")
        reader.wait_line("copied")
        activity = wait_for(lambda: self.velm.status().get("activity"), 5, "a word about it")
        self.assertIn("large", (activity["leading"] + (activity.get("trailing") or "")).lower())
        self.assert_not_kept(lambda: None)
        owner.stop()

    def test_a_picture_that_lies_about_its_size_is_not_kept(self):
        for said in ((60000, 60000), (0, 0), (20, 200_000_000)):
            with self.subTest(said):
                self.assert_not_kept(lambda: self.clipboard.copy_bytes(png(8, 8, said_size=said), "image/png"))

    def test_what_only_says_to_be_a_picture_is_not_kept(self):
        self.assert_not_kept(lambda: self.clipboard.copy_bytes(b"\x89PNG\r\n\x1a\n broken", "image/png"))

    def test_broken_text_does_not_break_the_history(self):
        for data in (b"with \0 a NUL", b"\xff\xfe invalid \xc3\x28 bytes", b"\xed\xa0\x80 a lone surrogate"):
            with self.subTest(data):
                count = len(self.velm.clips())
                self.clipboard.copy_bytes(data, "UTF8_STRING")
                wait_for(lambda: len(self.velm.clips()) == count + 1, 5, "the clip")
        self.velm.restart()
        self.assertGreaterEqual(len(self.velm.clips()), 3)

    def test_only_local_files_of_a_list_are_kept(self):
        path = self.desktop.home.home / "real file.txt"
        path.write_text("real")
        lines = ["# a comment", "https://example.org/remote.txt", "relative/path.txt", "file:///broken%ZZname",
                 path.as_uri(), ""]
        self.clipboard.copy_bytes("\r\n".join(lines).encode(), "text/uri-list")
        clip = wait_for(lambda: next((clip for clip in self.velm.clips() if clip["kind"] == "files"), None), 5,
                        "the files clip")
        self.assertIn(str(path), clip["filePaths"])
        self.assertTrue(all(name.startswith("/") for name in clip["filePaths"]), clip["filePaths"])
        self.assertFalse([name for name in clip["filePaths"] if "remote" in name or "relative" in name])

    def test_ten_million_characters_hold_nothing_up(self):
        owner, reader = self.clipboard.owner("large", "10000000")
        reader.wait_line("copied")
        slowest = 0.0

        def arrived():
            nonlocal slowest
            began = time.monotonic()
            status = self.velm.status()
            slowest = max(slowest, time.monotonic() - began)
            return status.get("activity")
        wait_for(arrived, 15, "the large clip")
        self.assertLess(slowest, 0.5)
        owner.stop()
        self.velm.do("clip", "delete", self.velm.clips()[0]["id"])


if __name__ == "__main__":
    unittest.main()
