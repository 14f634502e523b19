"""What the desktop tests have in common."""

import os
import unittest

from .desktop import Desktop
from .velm import Velm


class DesktopCase(unittest.TestCase):
    """Tests that share one desktop and one Velm, closed and with the pointer away before each."""

    compositor = False
    window_manager = True
    settings = {"playSounds": False}

    @classmethod
    def setUpClass(cls):
        cls.desktop = cls.enterClassContext(
            Desktop(compositor=cls.compositor, window_manager=cls.window_manager))
        cls.desktop.home.write_settings(**cls.settings)
        cls.prepare_desktop()
        cls.velm = cls.enterClassContext(Velm(cls.desktop))
        cls.windows = cls.desktop.windows
        cls.clipboard = cls.desktop.clipboard

    @classmethod
    def prepare_desktop(cls):
        """Programs that are to run before Velm."""

    def setUp(self):
        if not self.velm.is_running:
            self.velm.start()
        self.velm.close()

    def run(self, result=None):
        """Where VELM_FAILURES names a folder, what the screen shows after a failure is saved there."""
        before = self._count_failures(result)
        outcome = super().run(result)
        folder = os.environ.get("VELM_FAILURES")
        if folder and self._count_failures(outcome) > before:
            os.makedirs(folder, exist_ok=True)
            self.windows.screenshot(os.path.join(folder, f"{self._testMethodName}.png"))
        return outcome

    @staticmethod
    def _count_failures(result):
        return len(result.failures) + len(result.errors) if result else 0

    def tearDown(self):
        self.assertTrue(self.velm.is_running, self.velm.log_text()[-3000:])

    def set_for_this_test(self, key, value):
        """A preference that is back at its default afterwards."""
        self.addCleanup(self.velm.ask, "prefs", "reset", key)
        self.velm.do("prefs", "set", key, value)
