"""A private desktop for tests, demonstrations and measurements."""

from .child import Child, LineReader, run
from .desktop import Desktop
from .home import Home
from .velm import Reply, Velm, program_path
from .waiting import NotInTime, stays, wait_for

__all__ = ["Child", "Desktop", "Home", "LineReader", "NotInTime", "Reply", "Velm", "program_path", "run", "stays",
           "wait_for"]
