"""Copies made by other programs, as they reach the history."""

import unittest

from rig import Child, run, stays, wait_for
from rig.case import DesktopCase
from rig.pictures import png, png_size


class CopiesByOtherPrograms(DesktopCase):
    def newest(self):
        clips = self.velm.clips()
        return clips[0] if clips else None

    def wait_kind(self, kind):
        return wait_for(lambda: (self.newest() or {}).get("kind") == kind and self.newest(), 10,
                        f"a clip of kind {kind}")

    def test_a_text_is_kept_as_it_was_copied(self):
        text = "  Grüße, 世界 👩‍👩‍👧\n\tsecond line  "
        self.clipboard.copy_text(text)
        clip = self.velm.wait_clip(text)
        self.assertEqual((clip["kind"], clip["pinned"], clip["useCount"]), ("text", False, 0))

    def test_a_copied_text_is_classified(self):
        for kind, text in (("link", "https://example.org/a"), ("color", "#ff8800"), ("code", "let x = 1;")):
            with self.subTest(kind):
                self.clipboard.copy_text(text)
                self.assertEqual(self.velm.wait_clip(text)["kind"], kind)

    def test_a_picture_is_kept_as_a_file_with_its_size(self):
        self.clipboard.copy_bytes(png(64, 48), "image/png")
        clip = self.wait_kind("image")
        self.assertEqual(clip["text"], "64×48")
        stored = self.desktop.home.data / "Clips" / clip["imageFile"]
        wait_for(stored.exists, 5, "the picture's file")
        self.assertEqual(png_size(stored.read_bytes()), (64, 48))

    def test_equal_pixels_are_one_picture(self):
        self.clipboard.copy_bytes(png(33, 21), "image/png")
        wait_for(lambda: (self.newest() or {}).get("text") == "33×21", 10, "the picture")
        first = self.newest()
        self.clipboard.copy_text("between two pictures")
        self.velm.wait_clip("between two pictures")
        self.clipboard.copy_bytes(png(33, 21), "image/png")
        again = wait_for(lambda: self.newest()["text"] == "33×21" and self.newest(), 10, "the picture again")
        self.assertEqual((again["id"], again["useCount"]), (first["id"], 1))

    def test_files_are_kept_by_their_paths(self):
        paths = [self.desktop.home.home / name for name in ("plain.txt", "with space & ümlaut.txt")]
        for path in paths:
            path.write_text("content")
        self.clipboard.copy_files(paths)
        clip = self.wait_kind("files")
        self.assertEqual(clip["filePaths"], [str(path) for path in paths])
        self.assertEqual(clip["preview"], "plain.txt, with space & ümlaut.txt")

    def test_a_file_manager_s_copy_is_files(self):
        folder = self.desktop.home.home / "two files"
        folder.mkdir()
        for name in ("one.txt", "two.txt"):
            (folder / name).write_text(name)
        self.desktop.start(["pcmanfm-qt", "--new-window", folder])
        self.windows.activate(self.windows.find("pcmanfm-qt", by="--class"))

        def copied():
            self.windows.key("ctrl+a", "ctrl+c")
            return (self.newest() or {}).get("filePaths") == [str(folder / "one.txt"), str(folder / "two.txt")]
        wait_for(copied, 15, "the copied files", pause=0.3)
        self.assertIn("pcmanfm", self.newest()["sourceBundleID"].lower())

    def test_blank_text_is_never_kept(self):
        self.clipboard.copy_text("before the blank one")
        self.velm.wait_clip("before the blank one")
        self.clipboard.copy_text(" \n\t ")
        wait_for(lambda: self.clipboard.text() == " \n\t ", 3, "the blank copy")
        self.clipboard.copy_text("after the blank one")
        self.velm.wait_clip("after the blank one")
        self.assertEqual(self.velm.texts()[:2], ["after the blank one", "before the blank one"])

    def test_a_text_copied_again_moves_up_and_is_counted(self):
        for text in ("first of two", "second of two"):
            self.clipboard.copy_text(text)
            before = self.velm.wait_clip(text)
        self.clipboard.copy_text("first of two")
        clip = self.velm.wait_clip("first of two")
        self.assertEqual(clip["useCount"], 1)
        self.assertEqual(self.velm.texts().count("first of two"), 1)
        self.assertEqual(self.velm.texts()[1], before["text"])

    def test_a_clip_taken_back_is_not_captured_anew(self):
        self.clipboard.copy_text("taken back")
        clip = self.velm.wait_clip("taken back")
        self.clipboard.copy_text("on top of it")
        self.velm.wait_clip("on top of it")
        self.velm.do("clip", "use", clip["id"])
        wait_for(lambda: self.clipboard.text() == "taken back", 3, "the clip on the clipboard")
        self.assertTrue(stays(lambda: self.velm.texts()[:2] == ["on top of it", "taken back"], 0.5))
        used = self.velm.clips()[1]
        self.assertEqual((used["useCount"], used["date"]), (1, clip["date"]))

    def test_a_text_taken_back_and_copied_again_later_moves_up(self):
        self.clipboard.copy_text("wanted twice")
        clip = self.velm.wait_clip("wanted twice")
        self.velm.do("clip", "use", clip["id"])
        wait_for(lambda: self.clipboard.text() == "wanted twice", 3, "the clip on the clipboard")
        self.clipboard.copy_text("something else")
        self.velm.wait_clip("something else")
        self.clipboard.copy_text("wanted twice")
        self.assertEqual(self.velm.wait_clip("wanted twice")["useCount"], 2)

    def test_nothing_is_kept_while_paused_nor_later(self):
        self.velm.do("clip", "pause")
        self.addCleanup(self.velm.ask, "clip", "resume")
        self.clipboard.copy_text("copied while paused")
        wait_for(lambda: self.clipboard.text() == "copied while paused", 3, "the copy")
        self.velm.do("clip", "resume")
        self.clipboard.copy_text("copied after the pause")
        self.velm.wait_clip("copied after the pause")
        self.assertNotIn("copied while paused", self.velm.texts())

    def test_a_burst_of_copies_is_kept_whole(self):
        # 50 copies a second: quicker ones are measured by the bench, for a busy machine cannot promise them.
        owner, reader = self.clipboard.owner("burst", "100", "20000", "burst ")
        reader.wait_line("done", 15)
        self.velm.wait_clip("burst 99", 10)
        kept = [text for text in self.velm.texts() if text.startswith("burst ")]
        self.assertEqual(kept, [f"burst {i}" for i in reversed(range(100))])
        owner.stop()

    def test_a_text_of_several_megabytes_comes_whole(self):
        owner, reader = self.clipboard.owner("large", "5000000")
        reader.wait_line("copied")
        clip = wait_for(lambda: self.newest() if len((self.newest() or {"text": ""})["text"]) == 5_000_000 else None,
                        15, "the large clip")
        self.assertTrue(clip["text"].startswith("aaaa"))
        self.velm.do("clip", "delete", clip["id"])
        owner.stop()

    def test_the_copied_activity_says_so_in_the_closed_island(self):
        self.clipboard.copy_text("see the island")

        def said():
            activity = self.velm.status().get("activity", {})
            return (activity.get("leading"), activity.get("trailing")) == ("Copied", "see the island")
        wait_for(said, 3, "the activity")
        wait_for(lambda: "activity" not in self.velm.status(), 5, "the activity to go")


class PasswordManagers(DesktopCase):
    def open_keepassxc(self):
        """KeePassXC with one entry whose password is in the list."""
        database = self.desktop.home.home / "secrets.kdbx"
        for words, typed in ((["db-create", "-q", "-p", database], "pw\npw\n"),
                             (["add", "-q", "-u", "person", "-p", database, "entry"], "pw\nhidden-word\n")):
            run(["keepassxc-cli", *words], self.desktop.env, 60, input=typed).check_returncode()
        typed = self.desktop.home.root / "typed"
        typed.write_text("pw\n")
        with open(typed, encoding="ascii") as stream:
            self.desktop.enter_context(Child(["keepassxc", "--pw-stdin", database], self.desktop.env,
                                             self.desktop.log, stdin=stream))
        return self.windows.find("secrets.kdbx.*KeePassXC", limit=30)

    def test_what_keepassxc_copies_is_never_stored(self):
        self.windows.activate(self.open_keepassxc())

        def copied():
            self.windows.key("Down", "ctrl+c")
            return "x-kde-passwordManagerHint" in self.clipboard.types()
        wait_for(copied, 20, "KeePassXC's copy", pause=0.3)
        self.assertEqual(self.clipboard.text(), "hidden-word")

        self.clipboard.copy_text("an open word")
        self.velm.wait_clip("an open word")
        self.assertNotIn("hidden-word", self.velm.texts())
        wait_for(lambda: "an open word" in self.read_state(), 5, "the file")
        self.assertNotIn("hidden-word", self.read_state())

    def read_state(self):
        path = self.desktop.home.data / "clipboard.json"
        return path.read_text(encoding="utf-8") if path.exists() else ""

    def test_marked_copies_are_kept_where_the_person_wants_it(self):
        self.set_for_this_test("ignoreConcealed", "false")
        owner, _ = self.clipboard.owner("concealed", "marked but wanted")
        self.velm.wait_clip("marked but wanted")
        owner.stop()


if __name__ == "__main__":
    unittest.main()
