"""A program in which a person types."""

from .child import Child
from .waiting import wait_for


class TextEditor(Child):
    """mousepad as a program of its own, on a new and empty file."""

    def __init__(self, desktop, path):
        self.path = path
        self._windows = desktop.windows
        path.touch()
        super().__init__(["mousepad", "--disable-server", path], desktop.env, desktop.log)
        self.window = self._windows.find(path.name)
        self.activate()

    def activate(self):
        self._windows.activate(self.window)

    def saved_text(self):
        """What the file holds once it is saved."""
        self.activate()
        self._windows.key("ctrl+s")
        return self.path.read_text(encoding="utf-8")

    def wait_text(self, text, limit=8.0):
        wait_for(lambda: self.saved_text() == text, limit, f"{text!r} in the editor", pause=0.25)
